#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <memory>

class cDataAccess;
class cDatabase;
class cRescue;
class cSettings;
class cShell;
class cUser;
enum class eDatabaseFault;

// An open book: the database with its operations and settings. The objects behind Data() and Database() live as long as
// the book, the one behind Settings() from the first opening on; all of them serve the file that was opened last.
class cBook
{
public:
    // Failures of database operations are shown to `user`.
    explicit cBook(cUser& user);
    cBook(const cBook&) = delete;
    cBook& operator=(const cBook&) = delete;
    ~cBook();

    // Opens an existing file and brings it up to date, without questions and without keeping a copy: for files that a
    // program has made itself. A failure is shown and returned.
    [[nodiscard]] bool Open(const QString& path);

    // Opens an existing file for reading only and leaves it untouched: for a file that somebody else writes. A failure
    // is shown and returned.
    [[nodiscard]] bool OpenForReading(const QString& path);

    // Who is asked, and what is written into the copies, when a user's file is opened.
    struct cPorts
    {
        cShell& Shell;
        cRescue& Rescue;
        QString Version;
        QDate Today;
    };

    // Opens a user's file with all the questions that may be needed on the way; see Path for the file opened in the
    // end. `isFresh` says that the file was just copied from the template. False when the program has to end.
    [[nodiscard]] bool OpenWithQuestions(const QString& path, bool isFresh, const cPorts& ports);

    // Opens a user's file while another book stays open elsewhere: a file that is no usable database is refused with a
    // message instead of questions. For the rest like OpenWithQuestions.
    [[nodiscard]] bool TryOpen(const QString& path, bool isFresh, const cPorts& ports);

    void Close();

    [[nodiscard]] bool IsOpen() const;
    [[nodiscard]] bool IsReadOnly() const;
    [[nodiscard]] QString Path() const;
    // What the last opening added to the file, in words for the user.
    [[nodiscard]] const QStringList& Added() const { return m_added; }

    [[nodiscard]] cDatabase& Database() { return *m_database; }
    [[nodiscard]] cDataAccess& Data() { return *m_data; }
    // Only after the first successful opening.
    [[nodiscard]] cSettings& Settings() { return *m_settings; }

private:
    [[nodiscard]] bool Refuse(eDatabaseFault fault, const QString& path);
    void LoadSettings();
    void NameShutOut();

    cUser& m_user;
    std::unique_ptr<cDatabase> m_database;
    std::unique_ptr<cDataAccess> m_data;
    std::unique_ptr<cSettings> m_settings;
    QStringList m_added;
};
