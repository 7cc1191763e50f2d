#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

struct cCliContext;

// What a command needs of the database.
enum class eCliAccess {
    None,
    Read,
    Write,
    Unlock, // like Write, but nobody is asked for the password
};

// An option of a command. Without a placeholder for its value it is a switch.
struct cCliOption
{
    QString Name; // without the dashes
    QString Value;
    QString Help;
    bool MayBeEmpty = false; // else an empty value is refused: a variable of the script is probably not set
};

// One command of the command line program.
struct cCliCommand
{
    QString Name;        // two words for what is done with the things that the first one lists
    QString Arguments{}; // as the help shows them
    QString Help;
    int MinArguments = 0;
    int MaxArguments = 0;
    eCliAccess Access = eCliAccess::Read;
    bool IsOnline = false;    // talks to a bank
    QStringList ReadsWith{};  // with one of these options it only reads, whatever Access says
    QStringList WritesWith{}; // where there are any: it only reads without one of these
    QList<cCliOption> Options{};
    int (*Run)(const cCliContext&) = nullptr; // gives the exit code
};

// Exit codes of the program.
namespace modExit {

inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int Usage = 2;

} // namespace modExit

// A command line, taken apart.
class cCliCall
{
public:
    // Reads the arguments after the program's name. What is wrong with them stands in Error().
    [[nodiscard]] static cCliCall Parse(const QStringList& arguments, const QList<cCliCommand>& commands);

    // True for what asks for the help instead of a command.
    [[nodiscard]] static bool IsHelpWord(const QString& text);

    [[nodiscard]] const QString& Error() const { return m_error; }
    [[nodiscard]] bool WantsHelp() const { return m_wantsHelp; }
    [[nodiscard]] const cCliCommand* Command() const { return m_command; } // null when help is wanted
    [[nodiscard]] eCliAccess Access() const;                               // only with a command
    [[nodiscard]] const QStringList& Arguments() const { return m_arguments; }
    [[nodiscard]] bool Has(const QString& option) const { return m_options.contains(option); }
    [[nodiscard]] QString Value(const QString& option) const; // the last one given; empty when missing
    [[nodiscard]] QStringList Values(const QString& option) const { return m_options.value(option); }

private:
    [[nodiscard]] const cCliOption* FindOption(const QString& name) const;
    void TakeOption(const QString& text, QStringList& rest);
    void TakeArgument(const QString& text, const QList<cCliCommand>& commands);
    [[nodiscard]] bool TakeSecondWord(const QString& text, const QList<cCliCommand>& commands);
    void CheckOptions();
    void CheckCounts();

    QString m_error;
    bool m_wantsHelp = false;
    const cCliCommand* m_command = nullptr;
    QStringList m_arguments;
    QHash<QString, QStringList> m_options;
};
