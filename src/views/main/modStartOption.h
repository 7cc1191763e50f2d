#pragma once

#include <QList>
#include <QString>

// The options with which the window program starts.
namespace modStartOption {

struct cOption
{
    QString Name;  // without the dashes
    QString Value; // placeholder; empty for a switch
    QString Help;
};

// In the language of the moment.
[[nodiscard]] QList<cOption> All();

inline const QString Profile = QStringLiteral("profile");
inline const QString Import = QStringLiteral("import");
inline const QString NewEntry = QStringLiteral("new-entry");
inline const QString DebugInfo = QStringLiteral("debug-info");

// What stands behind the options.
[[nodiscard]] QString FilesHelp();

} // namespace modStartOption
