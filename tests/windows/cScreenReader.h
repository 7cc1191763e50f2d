#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QString>
#include <QStringList>

// An object of a window as it is found on the bus.
struct cTold
{
    // The numbers of states on the bus.
    enum eState { Checked = 4, Enabled = 8, Focusable = 11, Showing = 25, Visible = 30 };

    QString Path;
    QString Role;
    QString Name;
    QString Description;
    QString Text;         // of a field
    QString Value;        // of a slider or a bar
    QStringList Labels;   // the paths of those that name it
    QStringList Children; // their paths
    quint64 States = 0;

    [[nodiscard]] bool Is(eState state) const { return ((States >> state) & 1U) != 0; }
    [[nodiscard]] QString All() const { return Name + u'\n' + Description + u'\n' + Text + u'\n' + Value; }
};

using cToldWindow = QHash<QString, cTold>;

// Reads windows as a screen reader does: over the bus for accessibility, in a thread of its own, because the windows of
// this very program answer meanwhile.
class cScreenReader
{
public:
    // Joins the bus and waits until this program has announced itself. False with why in Fault() when that fails.
    [[nodiscard]] bool Join();
    [[nodiscard]] const QString& Fault() const { return m_fault; }

    // Everything that can be reached from the list of the program's windows, by the paths on the bus.
    [[nodiscard]] cToldWindow Read() const;

private:
    [[nodiscard]] cToldWindow ReadAll() const;

    QDBusConnection m_bus{QString()};
    QString m_program; // its name on the bus
    QString m_fault;
};
