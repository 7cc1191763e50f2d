#pragma once

#include <QString>

#include <optional>

class cBook;
class cClock;
class cConfiguration;
class cRescue;
class cShell;
class cUser;

// Which part of the program opens a book. Each notes its version in it for itself.
enum class eFrontEnd { Window, CommandLine };

// The order in which the program comes up, as far as it needs no window.
class cStartUp
{
public:
    struct cPorts
    {
        cShell& Shell;
        cUser& User;
        cRescue& Rescue;
        const cClock& Clock;
    };

    // `version` is "major.minor.revision" of the running program.
    cStartUp(const cPorts& ports, cConfiguration& configuration, QString version,
             eFrontEnd frontEnd = eFrontEnd::Window);

    // Offers to leave the German mark behind when the system still has it as currency.
    void CheckCurrency();

    struct cFound
    {
        QString Path;
        bool IsFresh = false; // just copied from the template
    };

    // The database of the configuration, else the default one, which is made when it is missing. What is wrong with the
    // configured path is shown. When there is no file but others beside it that were or were to be this book, the user
    // is asked which to take; without an answer the path comes back as it is, with nothing there.
    [[nodiscard]] cFound FindDatabase() const;

    // Opens a book with all questions that this may take, and connects its settings with the configuration. False when
    // the program has to end; the user knows why.
    [[nodiscard]] bool OpenBook(cBook& book, const cFound& found);

    // Opens a book while another one stays open elsewhere: a file that is no usable database is refused with a message.
    [[nodiscard]] bool TryBook(cBook& book, const cFound& found);

    // Asks for the password when that is switched on. False keeps the data closed.
    [[nodiscard]] bool AskPassword() const;

    // True when the window of another version of the program opened this database last. Only the window is told.
    [[nodiscard]] bool IsNewVersion() const { return m_isNewVersion; }

private:
    [[nodiscard]] std::optional<cFound> FindLeftover(const QString& path) const;
    void Connect(cBook& book); // its settings come first from now on

    cPorts m_ports;
    cConfiguration& m_configuration;
    QString m_version;
    eFrontEnd m_frontEnd;
    bool m_isNewVersion = false;
};
