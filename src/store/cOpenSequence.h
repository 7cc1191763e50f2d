#pragma once

#include "store/cDatabase.h"

#include <QDate>
#include <QString>
#include <QStringList>

class cRescue;
class cShell;
class cUser;
enum class eAnswer;

enum class eOpenResult { Opened, OpenedReadOnly, Ended };

// Whether a file has just been copied from the template and holds nothing that could be lost.
enum class eOrigin { Existing, Fresh };

// What a refusal means: the end of the program, or that another book stays open.
enum class eRefusal { EndsProgram, KeepsOldBook };

// Everything that happens between a path and an open, current database, with all questions to the user. Nothing is
// deleted: what is replaced stays beside the database under another name.
class cOpenSequence
{
public:
    struct cPorts
    {
        cShell& Shell;
        cUser& User;
        cRescue& Rescue;
    };

    // `version` is the running program's; `today` dates the copies. Where a refusal keeps the old book, the messages do
    // not speak of the program's end.
    cOpenSequence(cDatabase& database, const cPorts& ports, QString version, QDate today,
                  eRefusal refusal = eRefusal::EndsProgram);

    // Opens the file, or another one that the user chooses on the way. After `Ended` the reason has been shown, no
    // database is open and the program has nothing left to do.
    [[nodiscard]] eOpenResult Run(const QString& path, eOrigin origin = eOrigin::Existing);

    // The file that was opened in the end.
    [[nodiscard]] const QString& Path() const { return m_path; }
    // What the upgrade added, in words for the user.
    [[nodiscard]] const QStringList& Added() const { return m_added; }

private:
    enum class eStep { Continue, End };

    [[nodiscard]] bool Ask(const QString& text) const;
    [[nodiscard]] bool AskAboutFault(const QString& text) const;
    [[nodiscard]] eStep End(const QString& text) const;
    [[nodiscard]] eStep EndForNow() const;

    [[nodiscard]] eStep FindFile();
    [[nodiscard]] eStep FindOtherPlace();
    [[nodiscard]] eStep MakeUsable();
    [[nodiscard]] eDatabaseFault OpenPatiently();
    [[nodiscard]] eStep OfferOtherPath();
    void Repair();
    void RestoreBackup();
    void Initialise();
    [[nodiscard]] eAnswer AskAboutBackup(const QString& backup) const;
    [[nodiscard]] bool ReplaceBy(const QString& working, QString problem);

    [[nodiscard]] eOpenResult Prepare();
    [[nodiscard]] eOpenResult AskForReading();
    [[nodiscard]] eOpenResult OpenForReading(const QString& message);
    [[nodiscard]] QString CopyBeforeUpgrade();

    cDatabase& m_database;
    cPorts m_ports;
    QString m_version;
    QDate m_today;
    eRefusal m_refusal;
    QString m_path;
    eOrigin m_origin = eOrigin::Existing;
    QStringList m_added;
};
