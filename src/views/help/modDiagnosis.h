#pragma once

#include <QString>
#include <QStringList>

class cConfiguration;
class cShell;

// What a stranger needs to know of this installation in order to help: versions, places and sizes. Nothing of what the
// book holds is read.
namespace modDiagnosis {

struct cFacts
{
    cShell& Shell;
    const cConfiguration& Configuration;
    QString Program;       // with version and state of the source
    QString Book{};        // the open one; empty for the one that the next start opens
    QStringList Surface{}; // lines about screen and style, where there is a window
};

[[nodiscard]] QString Text(const cFacts& facts);

// The path without what tells who the user is: "~" for the home, "…" for the user's name elsewhere.
[[nodiscard]] QString Shown(const QString& path, const QString& home, const QString& user);

} // namespace modDiagnosis
