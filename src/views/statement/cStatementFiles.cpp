#include "views/statement/cStatementFiles.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/read/cStatementSource.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modStatementFile.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cImportResult.h"
#include "import/stage/cLeftOutRows.h"
#include "import/stage/cStatementImport.h"
#include "import/stage/modEqualRows.h"
#include "import/table/cTableMemory.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cFilesOutcome.h"
#include "views/statement/cImportAssistant.h"
#include "views/statement/cLeftOutList.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using eWish = cStatementWishes::eWish;

struct cStatementFiles::cWorks
{
    cWorks(const cBookTools& tools, cImportHiveCache& hive)
        : Memory(tools.Settings),
          Balances(tools.Settings),
          Import(tools.Data, hive, &Memory, &Balances)
    {
    }

    cTableMemory Memory;
    cBankBalances Balances;
    cStatementImport Import;
};

struct cStatementFiles::cRun
{
    cProgress& Progress;
    eAssist Assist = eAssist::WhereNeeded;
    cImportOptions Options{}; // where the assistant says nothing else
    bool ShowsRefusals = true;
    int Count = 0;  // of the files
    int Before = 0; // row before all files
    int Number = 0; // of the present file
    QStringList Lines{};
    QStringList Numbers{};
    QStringList Firsts{};               // of these the ones that have a first row, or a first balance, for certain
    QHash<QString, QString> Products{}; // what the bank calls the account of a number that was fetched
    QStringList Refusals{};
    QList<int> Rows{}; // staged
    cForeignNames Names{};
    std::vector<std::unique_ptr<cImportAssistant>> Answered{};
    cFilesOutcome Outcome{};
};

cStatementFiles::cStatementFiles(const cBookTools& tools, cImportHiveCache& hive, cAccountMap& accounts,
                                 QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_hive(hive),
      m_accounts(accounts),
      m_works(std::make_unique<cWorks>(tools, hive)),
      m_leftOut(std::make_unique<cLeftOutList>(tools, hive))
{
    connect(m_leftOut.get(), &cLeftOutList::Staged, this, &cStatementFiles::NoteMore);
}

cStatementFiles::~cStatementFiles() = default;

void cStatementFiles::ChooseFiles(cProgress& progress, eAssist assist)
{
    const QStringList paths = m_tools.User.ChooseFiles(
        cText::Tr("Kontoauszüge importieren"),
        cText::Tr(
            "Alle Kontoauszüge|*.csv;*.txt;*.sta;*.mta;*.mt940;*.mt942;*.mt9;*.940;*.942;*.swi;*.xml;*.camt;*.zip;"
            "*.xls;*.xlsx;*.ofx;*.qfx;*.qif|CSV/XLS/MT940/MT942/OFX/QIF-Datei|*.csv;*.txt;*.mt940;*.mt942;*.xls;"
            "*.mt9;*.ofx;*.qif|Alle Dateien|*.*"),
        ePurpose::Statement);
    if (!paths.isEmpty()) {
        ImportFiles(paths, progress, assist);
    }
}

void cStatementFiles::ImportFiles(const QStringList& paths, cProgress& progress, eAssist assist)
{
    m_waiting.append(paths);
    if (m_isRunning) {
        return; // dropped before the progress box stood in the way: the run under way takes them next
    }
    const QScopedValueRollback running(m_isRunning, true);
    while (!m_waiting.isEmpty()) {
        cRun run{.Progress = progress, .Assist = m_assist ? assist : eAssist::WhereNeeded};
        RunNew(std::exchange(m_waiting, {}), run);
    }
}

cFilesOutcome cStatementFiles::ReadFiles(const QStringList& paths, const cImportOptions& options, cProgress& progress)
{
    cRun run{.Progress = progress, .Options = options, .ShowsRefusals = false};
    if (options.Run == eStagingRun::Write) {
        RunNew(paths, run);
    } else {
        Try(paths, run);
    }
    return run.Outcome;
}

void cStatementFiles::Try(const QStringList& paths, cRun& run)
{
    for (const QString& path : paths) {
        run.Outcome.Files.append(m_works->Import.ImportFile(path, AsWished(OptionsOf(run)), run.Progress));
    }
    modEqualRows::Settle(run.Outcome.Files, m_works->Import.StagingFor(eStagingRun::Try));
}

void cStatementFiles::RunNew(const QStringList& paths, cRun& run)
{
    Q_EMIT ImportStarts();
    cUndoStep step(m_tools.Data, cText::Tr("Kontoauszug eingelesen"), cJournal::eWrites::InPortions);
    QList<cFile> files;
    for (const QString& path : paths) {
        files.append({path, {}, {}});
    }
    Run(files, run);
    run.Outcome.IsDone = step.Done() && run.Outcome.IsDone;
}

bool cStatementFiles::CanReadAgain() const
{
    return m_assist && !m_last.isEmpty() && !m_last.constFirst().Path.isEmpty() && !m_tools.Data.IsReadOnly();
}

void cStatementFiles::ReadAgain(cProgress& progress)
{
    Q_EMIT ImportStarts();
    const cUndoStep step(m_tools.Data, cText::Tr("Kontoauszug noch einmal eingelesen"), cJournal::eWrites::InPortions);
    const QList<cFile> files = m_last;
    cRun run{.Progress = progress, .Assist = eAssist::Always};
    Run(files, run);
}

void cStatementFiles::Run(const QList<cFile>& files, cRun& run)
{
    run.Count = static_cast<int>(files.size());
    run.Before = NewestRow();
    m_last.clear();
    bool isStopped = false;
    for (const cFile& file : files) {
        m_last.append(file);
        if (isStopped) {
            continue;
        }
        ++run.Number;
        const cImportResult result = ImportFile(file, run);
        Note(result, run);
        isStopped = result.IsCancelled;
    }
    End(run);
}

// What came of the file that m_last ends with.
void cStatementFiles::Note(const cImportResult& result, cRun& run)
{
    m_last.last().Format = result.Kind;
    for (const cFormatRows& each : result.ByFormat) {
        m_last.last().Rows.append(each.Ids);
        run.Rows.append(each.Ids);
        Q_EMIT FileStaged(each.Ids, each.Format);
    }
    run.Lines.append(modImportText::Summary(result, m_tools.Format));
    (void)cLeftOutRows(m_tools.Settings).Forget(result.Settled); // of a refusal the user has been told
    run.Numbers.append(result.Accounts);
    run.Names.Add(result.Book);
    run.Firsts += result.FirstBalances + m_accounts.Unknown(result.Accounts);
    run.Outcome.Files.append(result);
    if (m_wishes.Accounts == eWish::Take) {
        TakeAccounts(result, run.Products, run.Outcome);
    }
}

void cStatementFiles::End(cRun& run)
{
    run.Progress.hideProgressBar();
    const cRepeatList leftOut = SettleRepeats(run);
    // The list stands behind the questions that follow, so that the user sees what they are about.
    Q_EMIT Imported(run.Lines);
    m_leftOut->Fill(run.Outcome.Files, leftOut);
    if (run.ShowsRefusals && !run.Refusals.isEmpty()) {
        m_tools.User.Show(eTone::Exclamation, run.Refusals.join(u"\n\n"_s));
    }
    const QStringList due = cOpeningBalance(m_tools).Due(run.Numbers, run.Before, run.Firsts);
    ExpectStart(due);
    if (m_wishes.Accounts == eWish::Ask) {
        OfferNames(run.Names);
        AskUnknown(run.Numbers, run.Products);
    }
    OfferStart(due, run.Outcome);
    Q_EMIT RowsStaged(run.Rows);
}

cFilesOutcome cStatementFiles::TakeFetched(const QList<cFetchedStatement>& statements, cProgress& progress,
                                           const fnTaken& taken)
{
    cRun run{.Progress = progress, .Count = static_cast<int>(statements.size())};
    {
        const QScopedValueRollback running(m_isRunning, true);
        Q_EMIT ImportStarts();
        cUndoStep step(m_tools.Data, cText::Tr("Umsätze abgerufen"), cJournal::eWrites::InPortions);
        run.Before = NewestRow();
        m_last.clear();
        for (qsizetype place = 0; place < statements.size(); ++place) {
            m_last.append(cFile());
            cImportOptions options;
            const cImportResult result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
                return m_works->Import.ImportFetched(statements.at(place), wanted, progress);
            });
            AssignFetched(statements.at(place), result);
            for (const QString& number : result.Accounts) {
                run.Products.insert(number, statements.at(place).Product);
            }
            Note(result, run);
            taken(place, result);
            if (result.IsCancelled) {
                break;
            }
        }
        End(run);
        run.Outcome.IsKept = step.Done();
        run.Outcome.IsDone = run.Outcome.IsKept && run.Outcome.IsDone;
        if (!run.Outcome.IsKept) {
            run.Outcome.Notes.clear();
        }
    }
    ImportFiles({}, progress); // those that were dropped meanwhile
    return run.Outcome;
}

// Under whatever number an account tells its bookings, they are those of the account that was asked for.
void cStatementFiles::AssignFetched(const cFetchedStatement& statement, const cImportResult& result)
{
    const QStringList unknown = statement.BookAccount.isEmpty() ? QStringList() : m_accounts.Unknown(result.Accounts);
    for (const QString& number : unknown) {
        (void)m_accounts.Assign(number, statement.BookAccount); // of a refusal the user has been told
    }
}

cImportResult cStatementFiles::ImportFile(const cFile& file, cRun& run)
{
    if (run.Assist == eAssist::Always) {
        return Assist(file, run);
    }
    const cImportResult result = ImportUnasked(file.Path, run);
    if (result.NeedsAssistant) {
        return Assist(file, run);
    }
    NoteRefusal(result, run);
    return result;
}

void cStatementFiles::NoteRefusal(const cImportResult& result, cRun& run)
{
    const bool isAsked = result.HasStrayDetails || !result.OtherCurrencies.isEmpty();
    if (result.IsRefused && !isAsked) {
        run.Refusals.append(QFileInfo(result.File).fileName() + u'\n' + result.Message);
    }
}

cImportOptions cStatementFiles::OptionsOf(const cRun& run) const
{
    cImportOptions options = run.Options;
    options.DefaultAccount = m_accounts.NumberMeant(options.DefaultAccount);
    options.Uncertain = m_assist ? eUncertain::Ask : eUncertain::Read;
    return options;
}

cImportResult cStatementFiles::ImportUnasked(const QString& path, cRun& run)
{
    cImportOptions options = OptionsOf(run);
    const cImportResult result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
        return m_works->Import.ImportFile(path, wanted, run.Progress);
    });
    if (result.NeedsAccount && !result.NeedsAssistant && m_wishes.Accounts == eWish::Ask) {
        return AskForAccount(path, result, options, run);
    }
    RememberAccount(result, options.DefaultAccount);
    return result;
}

// The number that was given for files that name no account is remembered for the next one of the same layout.
void cStatementFiles::RememberAccount(const cImportResult& result, const QString& number)
{
    const bool isUsed = std::any_of(result.Accounts.begin(), result.Accounts.end(), [&](const QString& account) {
        return modAccountNumber::IsSame(account, {}, number);
    });
    if (isUsed) {
        (void)m_works->Memory.SaveAccount(result.AccountKey, number);
    }
}

cImportOptions cStatementFiles::AsWished(cImportOptions options) const
{
    if (m_wishes.Repeats == eWish::Take) {
        options.Equal = eEqualRows::Take;
    }
    if (m_wishes.Currency != eWish::Take) {
        options.BookCurrency = m_tools.Format.CurrencyCode();
    }
    if (m_wishes.Strays == eWish::Take) {
        options.StrayDetails = eStrayDetails::PassOver;
    }
    return options;
}

cImportResult cStatementFiles::OfferTheRest(cImportOptions& options, cRun& run, const fnImport& import)
{
    options = AsWished(options);
    cImportResult result = import(options);
    if (result.HasStrayDetails && m_wishes.Strays == eWish::Ask) {
        run.Progress.hideProgressBar();
        if (IsWantedWithoutStrays(result)) {
            options.StrayDetails = eStrayDetails::PassOver;
            result = import(options);
        }
    }
    if (!result.OtherCurrencies.isEmpty() && m_wishes.Currency == eWish::Ask) {
        run.Progress.hideProgressBar();
        if (IsCurrencyWanted(result)) {
            options.BookCurrency.clear();
            result = import(options);
        }
    }
    return result;
}

// A file that does not name its account is read with the number that the user gives.
cImportResult cStatementFiles::AskForAccount(const QString& path, const cImportResult& result, cImportOptions options,
                                             cRun& run)
{
    run.Progress.hideProgressBar();
    QStringList numbers = m_works->Memory.Accounts(result.AccountKey);
    for (const auto& [number, account] : m_accounts.Mapping()) {
        numbers.append(number);
    }
    numbers.removeDuplicates();
    QStringList shown; // with the account, which people know rather than its number
    QStringList without = m_accounts.Choices();
    for (const QString& number : std::as_const(numbers)) {
        const QString account = m_accounts.AccountOf(number);
        shown.append(account.isEmpty() || account == number ? number : cText::Tr("{0} – {1}", {number, account}));
        without.removeAll(account);
    }
    numbers += without; // an account without a number lends its name
    shown += without;
    const QString likely =
        result.IsAccountRemembered ? QString() : m_accounts.NumberMeant(m_accounts.ProposalFor(result.Unowned));
    const std::optional<QString> given =
        m_tools.User.Choose({.Text = QFileInfo(path).fileName() + u'\n' + result.Message,
                             .Title = cText::Tr("Kontonummer"),
                             .Items = shown,
                             .Proposal = shown.value(numbers.indexOf(likely)),
                             .AllowNew = true});
    const QString typed = given ? given->simplified() : QString();
    const QString number = m_accounts.NumberMeant(numbers.value(shown.indexOf(typed), typed));
    if (number.isEmpty()) {
        return result;
    }
    options.DefaultAccount = number;
    options.Uncertain = eUncertain::Read;
    const cImportResult second = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
        return m_works->Import.ImportFile(path, wanted, run.Progress);
    });
    RememberAccount(second, number);
    return second;
}

std::unique_ptr<cImportAssistant> cStatementFiles::StartAssistant(const QString& path)
{
    const modStatementFile::cContent content = modStatementFile::Read(path);
    if (!content.Failure.isEmpty()) {
        return nullptr;
    }
    const cImportAssistant::cParts parts{m_tools.Data, m_tools.Format,  m_hive,
                                         m_accounts,   m_works->Memory, m_tools.User};
    return std::make_unique<cImportAssistant>(parts, modStatementFormat::Source(path, content.Bytes));
}

cImportResult cStatementFiles::Assist(const cFile& file, cRun& run)
{
    run.Progress.hideProgressBar();
    cImportResult result;
    result.File = file.Path;
    result.IsRefused = true;
    auto assistant = StartAssistant(file.Path);
    if (!assistant) {
        result.Message = modStatementFile::Read(file.Path).Failure;
        NoteRefusal(result, run);
        return result;
    }
    assistant->SetPlace(run.Number, run.Count);
    assistant->SetReplaced(static_cast<int>(file.Rows.size()));
    if (!IsAnswered(*assistant, run)) {
        result.Message = cText::Tr("Der Importassistent wurde abgebrochen.");
        return result;
    }
    cUndoPart part(m_tools.Data);
    const QList<int> booked = RemoveOpen(file.Rows);
    cImportOptions options = assistant->Options();
    result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
        return m_works->Import.ImportSource(assistant->Source(), wanted, run.Progress);
    });
    if (result.IsRefused || result.IsCancelled) {
        part.Revert();
        NoteRefusal(result, run);
        return result;
    }
    m_last.last().Rows = booked;
    assistant->Remember();
    run.Answered.push_back(std::move(assistant));
    return result;
}

// Those that are left out.
cRepeatList cStatementFiles::SettleRepeats(cRun& run)
{
    modEqualRows::Settle(run.Outcome.Files, m_works->Import.StagingFor(eStagingRun::Write));
    cRepeatList open;
    cRepeatList leftOut;
    for (const cImportResult& result : std::as_const(run.Outcome.Files)) {
        for (const cRepeat& repeat : result.Repeats) {
            (repeat.WasLeftOut ? leftOut : open).append(repeat);
        }
    }
    const bool areTaken = !open.isEmpty() && m_wishes.Repeats == eWish::Ask && AreWanted(open);
    return leftOut + (areTaken ? TakeRepeats(open, run) : open);
}

bool cStatementFiles::AreWanted(const cRepeatList& repeats)
{
    QStringList lines;
    for (const cRepeat& repeat : repeats) {
        lines.append(modImportText::Row(repeat.Entry, m_tools.Format));
    }
    return m_tools.User.Ask(
               {.Text = cText::Tr("Der Kontoauszug enthält Umsätze mehrmals, mit gleichem Tag, Empfänger, "
                                  "Zweck und Betrag:\n\n{0}\n\nSollen auch diese übernommen werden? Das ist "
                                  "richtig, wenn Sie zum Beispiel zwei gleiche Fahrkarten gekauft haben.",
                                  {modCount::Cut(lines, 10).join(u'\n')}),
                .Title = cText::Tr("Gleiche Umsätze")})
        == eAnswer::Yes;
}

// Those that the database does not take, of which the user has been told.
cRepeatList cStatementFiles::TakeRepeats(cRepeatList repeats, cRun& run)
{
    cStaging staging(m_hive);
    QList<int> rows;
    while (!repeats.isEmpty()
           && staging.StageImportEntry(repeats.first().Entry, eDuplicateTest::Skip) == eStaged::Staged) {
        rows.append(repeats.constFirst().Entry.ID);
        (void)cLeftOutRows(m_tools.Settings).Forget({repeats.takeFirst()});
    }
    m_last.last().Rows.append(rows);
    run.Rows.append(rows);
    run.Lines.append(cText::Tr("{0} übernommen, obwohl sie anderen gleichen.",
                               {modImportText::Count(static_cast<int>(rows.size()))}));
    Q_EMIT FileStaged(rows, m_last.last().Format);
    return repeats;
}

// By what the user said about an earlier file of the same kind, or now.
bool cStatementFiles::IsAnswered(cImportAssistant& assistant, cRun& run)
{
    return std::any_of(run.Answered.begin(), run.Answered.end(),
                       [&](const auto& answered) { return assistant.Adopt(*answered); })
        || m_assist(assistant);
}

// Those that are booked already stay and are given back.
QList<int> cStatementFiles::RemoveOpen(const QList<int>& rows)
{
    QList<int> booked;
    QList<int> open;
    const cImportHive& hive = m_hive.GetImportHive();
    for (const int id : rows) {
        if (const std::optional<cImportEntry> row = hive.GetImportEntryByID(id)) {
            (row->ImportAssigned ? booked : open).append(id);
        }
    }
    (void)m_hive.Remove(open); // of a refusal the user has been told; what stays is found to be there already
    return booked;
}

int cStatementFiles::NewestRow()
{
    return m_hive.GetImportHive().NextId() - 1;
}

// Of what was left out.
void cStatementFiles::NoteMore(const QList<int>& rows)
{
    Q_EMIT Imported({cText::Tr("{0} trotzdem übernommen.", {modImportText::Count(static_cast<int>(rows.size()))})});
    const bool isFirst =
        std::all_of(m_last.begin(), m_last.end(), [](const cFile& file) { return file.Rows.isEmpty(); });
    if (rows.isEmpty()) {
        return;
    }
    if (isFirst && !m_last.isEmpty()) {
        m_last.last().Rows = rows;
        Q_EMIT RowsStaged(rows);
    } else {
        Q_EMIT MoreStaged(rows);
    }
}

void cStatementFiles::ForgetFiles()
{
    m_last.clear();
    m_leftOut->Drop();
}

void cStatementFiles::StartAfresh()
{
    for (cFile& file : m_last) {
        file.Rows.clear();
    }
    m_leftOut->Drop();
}
