#pragma once

#include "views/statement/cStatementWishes.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

enum class eStatementFormat;
class cAccountMap;
class cImportAssistant;
class cImportHiveCache;
class cLeftOutList;
class cProgress;
struct cBookTools;
struct cFetchedStatement;
struct cFilesOutcome;
struct cForeignNames;
struct cImportOptions;
struct cImportResult;
struct cRepeat;

// Statement files into staged rows, with the questions that this takes.
class cStatementFiles final : public QObject
{
    Q_OBJECT

public:
    // All of these outlive the flow.
    cStatementFiles(const cBookTools& tools, cImportHiveCache& hive, cAccountMap& accounts, QObject* parent = nullptr);
    ~cStatementFiles() override;

    // Opens the window of the assistant; false when the user gives up. Without one only the account is asked for.
    using fnAssist = std::function<bool(cImportAssistant&)>;
    void SetAssist(fnAssist assist) { m_assist = std::move(assist); }

    // Whether the user is asked how a file is to be read only where that is not certain, or always.
    enum class eAssist { WhereNeeded, Always };

    // The assistant for a file; null when the file cannot be opened. This object outlives it.
    [[nodiscard]] std::unique_ptr<cImportAssistant> StartAssistant(const QString& path);

    // All is asked without them.
    void SetWishes(const cStatementWishes& wishes) { m_wishes = wishes; }

    // Lets the user choose statement files and reads them.
    void ChooseFiles(cProgress& progress, eAssist assist = eAssist::WhereNeeded);
    // Reads the files and sees to the accounts of new numbers. A file that the user stops brings nothing.
    void ImportFiles(const QStringList& paths, cProgress& progress, eAssist assist = eAssist::WhereNeeded);
    // The same with options for all files, for who is told by what comes of it. With eStagingRun::Try nothing is
    // written.
    [[nodiscard]] cFilesOutcome ReadFiles(const QStringList& paths, const cImportOptions& options, cProgress& progress);

    // Takes what an online fetch brought, an account like a file, all of it as one step. Only numbers whose account of
    // the book is not known are asked about. `taken` is told within the step what came of each, by its place. Not done
    // when the database did not take the step, of which the user has been told.
    using fnTaken = std::function<void(qsizetype place, const cImportResult& result)>;
    [[nodiscard]] cFilesOutcome TakeFetched(const QList<cFetchedStatement>& statements, cProgress& progress,
                                            const fnTaken& taken);

    // Reads the last files once more with the assistant. What they brought and is still open goes, in the same step.
    [[nodiscard]] bool CanReadAgain() const;
    void ReadAgain(cProgress& progress);

    // Asks which accounts of the book the numbers belong to, as far as that is not known, and what these began with.
    void AskAccounts(const QStringList& numbers);

    // What was not taken of the last files.
    [[nodiscard]] cLeftOutList& LeftOut() { return *m_leftOut; }

    // What the last files brought may be gone: something was undone, or another book was opened.
    void StartAfresh();
    void ForgetFiles(); // the last ones, because they were those of another book

Q_SIGNALS:
    void ImportStarts(); // nothing of it is written yet
    // Staged rows came; the lines say what came of each file.
    void Imported(const QStringList& lines);
    // The accounts of numbers may be known now; the lines name those that are not.
    void AccountsAsked(const QStringList& lines);
    void StartTaken(); // a start balance is in the book, or another one
    // By one file of the import that is under way.
    void FileStaged(const QList<int>& ids, eStatementFormat format);
    void RowsStaged(const QList<int>& ids); // by the import that has just ended, after its questions
    void MoreStaged(const QList<int>& ids); // the same import got these later, as the user wanted

private:
    struct cWorks; // the tools of the import floor

    // A file of a run, with the rows that it brought.
    struct cFile
    {
        QString Path; // empty: an account that was fetched
        QList<int> Rows;
        eStatementFormat Format{};
    };
    struct cRun; // what one run over several files has so far

    void RunNew(const QStringList& paths, cRun& run);
    void Try(const QStringList& paths, cRun& run);
    void Run(const QList<cFile>& files, cRun& run);
    void Note(const cImportResult& result, cRun& run);
    void End(cRun& run);
    void AssignFetched(const cFetchedStatement& statement, const cImportResult& result);
    [[nodiscard]] cImportResult ImportFile(const cFile& file, cRun& run);
    [[nodiscard]] cImportResult ImportUnasked(const QString& path, cRun& run);
    [[nodiscard]] cImportResult AskForAccount(const QString& path, const cImportResult& result, cImportOptions options,
                                              cRun& run);
    void RememberAccount(const cImportResult& result, const QString& number);
    [[nodiscard]] cImportOptions OptionsOf(const cRun& run) const;
    [[nodiscard]] cImportOptions AsWished(cImportOptions options) const;
    // Imports with the options, and once more where the user wants that in spite of why it was refused.
    using fnImport = std::function<cImportResult(const cImportOptions&)>;
    [[nodiscard]] cImportResult OfferTheRest(cImportOptions& options, cRun& run, const fnImport& import);
    [[nodiscard]] cImportResult Assist(const cFile& file, cRun& run);
    [[nodiscard]] bool IsWantedWithoutStrays(const cImportResult& result);
    [[nodiscard]] bool IsCurrencyWanted(const cImportResult& result);
    static void NoteRefusal(const cImportResult& result, cRun& run); // to be shown at the end of the run
    [[nodiscard]] bool IsAnswered(cImportAssistant& assistant, cRun& run);
    [[nodiscard]] QList<int> RemoveOpen(const QList<int>& rows);
    void TakeAccounts(const cImportResult& result, const QHash<QString, QString>& products, cFilesOutcome& outcome);
    [[nodiscard]] bool AssignAccounts(const QStringList& numbers, const QHash<QString, QString>& products,
                                      QStringList& notes);
    [[nodiscard]] bool AddNames(const cImportResult& result, QStringList& notes);
    void OfferNames(const cForeignNames& names);
    [[nodiscard]] bool AreNamesWanted(const cForeignNames& missing);
    void AskUnknown(const QStringList& numbers, const QHash<QString, QString>& products);
    [[nodiscard]] bool IsStartOffered() const;
    void ExpectStart(const QStringList& numbers);
    void OfferStart(const QStringList& numbers, cFilesOutcome& outcome);
    [[nodiscard]] QList<cRepeat> SettleRepeats(cRun& run);
    [[nodiscard]] bool AreWanted(const QList<cRepeat>& repeats);
    [[nodiscard]] QList<cRepeat> TakeRepeats(QList<cRepeat> repeats, cRun& run);
    void NoteMore(const QList<int>& rows);
    [[nodiscard]] int NewestRow();

    const cBookTools& m_tools;
    cImportHiveCache& m_hive;
    cAccountMap& m_accounts;
    std::unique_ptr<cWorks> m_works;
    std::unique_ptr<cLeftOutList> m_leftOut;
    fnAssist m_assist;
    cStatementWishes m_wishes;
    QStringList m_waiting; // files that came while others were read
    bool m_isRunning = false;
    QList<cFile> m_last;
};
