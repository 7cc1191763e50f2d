#include "views/statement/cStatementFiles.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "import/read/cStatementSource.h"
#include "import/read/modStatementFile.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cImportResult.h"
#include "import/stage/cLeftOutRows.h"
#include "import/stage/cStatementImport.h"
#include "import/table/cTableMemory.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/ledger/cOpeningBalance.h"
#include "views/ledger/modImportText.h"
#include "views/statement/cImportAssistant.h"
#include "views/statement/modImportPreview.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <functional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

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

cStatementFiles::cStatementFiles(const cBookTools& tools, cImportHiveCache& hive, cAccountMap& accounts,
                                 QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_hive(hive),
      m_accounts(accounts),
      m_works(std::make_unique<cWorks>(tools, hive))
{
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
        Q_EMIT ImportStarts();
        const cUndoStep step(m_tools.Data, cText::Tr("Kontoauszug eingelesen"), cJournal::eWrites::InPortions);
        QList<cFile> files;
        for (const QString& path : std::exchange(m_waiting, {})) {
            files.append({path, {}, {}});
        }
        Run(files, progress, assist);
    }
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
    Run(files, progress, eAssist::Always);
}

struct cStatementFiles::cRun
{
    cProgress& Progress;
    eAssist Assist;
    int Count = 0;  // of the files
    int Before = 0; // row before all files
    int Number = 0; // of the present one
    int Newest = 0; // row before the present file
    QStringList Lines{};
    QStringList Numbers{};
    QStringList Refusals{};
    QList<int> Rows{}; // staged
    cRepeatList Repeats{};
    cForeignNames Names{};
    std::vector<std::unique_ptr<cImportAssistant>> Answered{};
    QStringList FirstBalances{}; // as in cImportResult
};

void cStatementFiles::Run(const QList<cFile>& files, cProgress& progress, eAssist assist)
{
    cRun run{.Progress = progress,
             .Assist = m_assist ? assist : eAssist::WhereNeeded,
             .Count = static_cast<int>(files.size()),
             .Before = NewestRow()};
    Begin();
    bool isStopped = false;
    for (const cFile& file : files) {
        m_last.append(file);
        if (isStopped) {
            continue;
        }
        ++run.Number;
        run.Newest = NewestRow();
        const cImportResult result = ImportFile(file, run);
        Note(result, run);
        isStopped = result.IsCancelled;
    }
    End(run);
}

void cStatementFiles::Begin()
{
    m_leftOut.clear();
    m_last.clear();
}

// What came of the file that m_last ends with.
void cStatementFiles::Note(const cImportResult& result, cRun& run)
{
    const QList<int> rows = RowsAbove(run.Newest);
    m_last.last().Rows.append(rows);
    m_last.last().Format = result.Kind;
    run.Rows.append(rows);
    for (const cFormatRows& each : result.ByFormat) {
        Q_EMIT FileStaged(each.Ids, each.Format);
    }
    run.Lines.append(modImportText::Summary(result, m_tools.Format));
    KeepLeftOut(result);
    (void)cLeftOutRows(m_tools.Settings).Forget(result.Settled); // of a refusal the user has been told
    run.Repeats += result.Repeats;
    run.Numbers.append(result.Accounts);
    run.Names.Add(result.Book);
    run.FirstBalances += result.FirstBalances;
}

void cStatementFiles::End(cRun& run)
{
    run.Progress.hideProgressBar();
    SettleRepeats(run);
    // The list stands behind the questions that follow, so that the user sees what they are about.
    Q_EMIT Imported(run.Lines);
    Q_EMIT LeftOutChanged();
    if (!run.Refusals.isEmpty()) {
        m_tools.User.Show(eTone::Exclamation, run.Refusals.join(u"\n\n"_s));
    }
    const QStringList due = cOpeningBalance(m_tools).Due(run.Numbers, run.Before, run.FirstBalances);
    OfferNames(run.Names);
    AskUnknown(run.Numbers);
    OfferStart(due);
    Q_EMIT RowsStaged(run.Rows);
}

bool cStatementFiles::TakeFetched(const QList<cFetchedStatement>& statements, cProgress& progress, const fnTaken& taken)
{
    bool isKept = false;
    {
        const QScopedValueRollback running(m_isRunning, true);
        Q_EMIT ImportStarts();
        cUndoStep step(m_tools.Data, cText::Tr("Umsätze abgerufen"), cJournal::eWrites::InPortions);
        cRun run{.Progress = progress,
                 .Assist = eAssist::WhereNeeded,
                 .Count = static_cast<int>(statements.size()),
                 .Before = NewestRow()};
        Begin();
        for (qsizetype place = 0; place < statements.size(); ++place) {
            m_last.append(cFile());
            run.Newest = NewestRow();
            cImportOptions options;
            const cImportResult result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
                return m_works->Import.ImportFetched(statements.at(place), wanted, progress);
            });
            AssignFetched(statements.at(place), result);
            Note(result, run);
            taken(place, result);
            if (result.IsCancelled) {
                break;
            }
        }
        End(run);
        isKept = step.Done();
    }
    ImportFiles({}, progress); // those that were dropped meanwhile
    return isKept;
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

cImportResult cStatementFiles::ImportUnasked(const QString& path, cRun& run)
{
    cImportOptions options;
    options.Uncertain = m_assist ? eUncertain::Ask : eUncertain::Read;
    const cImportResult result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
        return m_works->Import.ImportFile(path, wanted, run.Progress);
    });
    return result.NeedsAccount && !result.NeedsAssistant ? AskForAccount(path, result, options, run) : result;
}

cImportResult cStatementFiles::OfferTheRest(cImportOptions& options, cRun& run, const fnImport& import)
{
    if (m_currency != eWish::Take) {
        options.BookCurrency = m_tools.Format.CurrencyCode();
    }
    cImportResult result = import(options);
    if (result.HasStrayDetails) {
        run.Progress.hideProgressBar();
        if (IsWantedWithoutStrays(result)) {
            options.StrayDetails = eStrayDetails::PassOver;
            result = import(options);
        }
    }
    if (!result.OtherCurrencies.isEmpty() && m_currency == eWish::Ask) {
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
    if (!second.IsRefused && !second.IsCancelled) {
        m_works->Memory.SaveAccount(second.AccountKey, number);
    }
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
    run.Newest = NewestRow(); // the numbers of removed rows come again
    cImportOptions options = assistant->Options();
    result = OfferTheRest(options, run, [&](const cImportOptions& wanted) {
        return m_works->Import.ImportSource(assistant->Source(), wanted, run.Progress);
    });
    if (result.IsRefused || result.IsCancelled) {
        part.Revert();
        run.Newest = NewestRow();
        NoteRefusal(result, run);
        return result;
    }
    m_last.last().Rows = booked;
    assistant->Remember();
    run.Answered.push_back(std::move(assistant));
    return result;
}

// What one file left open another may have brought meanwhile: it counts how often the book has the row now.
void cStatementFiles::SettleRepeats(cRun& run)
{
    cRepeatList open;
    cRepeatList known;
    for (const cRepeat& repeat : std::as_const(run.Repeats)) {
        const bool isThere = m_hive.GetImportHive().AllButBlanks(repeat.Entry).size() >= repeat.Number;
        const bool isListed = std::any_of(open.begin(), open.end(), [&](const cRepeat& other) {
            return other.Number == repeat.Number && other.Entry.isEqualButBlanks(repeat.Entry);
        });
        if (!isThere && !isListed) {
            (repeat.WasLeftOut && m_repeats == eWish::Ask ? known : open).append(repeat);
        }
    }
    LeaveOut(known);
    if (open.isEmpty()) {
        return;
    }
    if (AreWanted(open)) {
        TakeRepeats(open, run);
    } else {
        LeaveOut(open);
    }
}

bool cStatementFiles::AreWanted(const cRepeatList& repeats)
{
    if (m_repeats != eWish::Ask) {
        return m_repeats == eWish::Take;
    }
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

void cStatementFiles::TakeRepeats(const cRepeatList& repeats, cRun& run)
{
    cStaging staging(m_hive);
    const int newest = NewestRow();
    cRepeatList rest = repeats;
    while (!rest.isEmpty() && staging.StageImportEntry(rest.first().Entry, eDuplicateTest::Skip) == eStaged::Staged) {
        (void)cLeftOutRows(m_tools.Settings).Forget({rest.takeFirst()});
    }
    LeaveOut(rest); // of a refusal the user has been told
    const QList<int> rows = RowsAbove(newest);
    m_last.last().Rows.append(rows);
    run.Rows.append(rows);
    run.Lines.append(cText::Tr("{0} übernommen, obwohl sie anderen gleichen.",
                               {modImportText::Count(static_cast<int>(rows.size()))}));
    Q_EMIT FileStaged(rows, m_last.last().Format);
}

void cStatementFiles::LeaveOut(const cRepeatList& repeats)
{
    for (const cRepeat& repeat : repeats) {
        m_leftOut.append({repeat.Entry, cText::Tr("steht mehrmals gleich im Kontoauszug"), repeat.Number});
    }
    (void)cLeftOutRows(m_tools.Settings).Note(repeats); // of a refusal the user has been told
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

QList<int> cStatementFiles::RowsAbove(int newest)
{
    const cImportEntryList rows = m_hive.GetImportHive().getImportEntryList(); // their numbers ascend
    const auto first =
        std::partition_point(rows.begin(), rows.end(), [newest](const cImportEntry& row) { return row.ID <= newest; });
    QList<int> ids;
    std::transform(first, rows.end(), std::back_inserter(ids), std::mem_fn(&cImportEntry::ID));
    return ids;
}

// Rows without a day or an amount cannot be taken; the summary names them.
void cStatementFiles::KeepLeftOut(const cImportResult& result)
{
    for (const cImportEntry& row : result.Duplicates) {
        m_leftOut.append({row, cText::Tr("schon vorhanden"), 0});
    }
    for (const cImportEntry& row : result.Alike) {
        m_leftOut.append({row, cText::Tr("schon vorhanden, nur anders geschrieben"), 0});
    }
    for (const cImportEntry& row : result.Deleted) {
        m_leftOut.append({row, cText::Tr("früher abgerufen und von Ihnen gelöscht"), 0});
    }
    for (const cSkippedRow& row : result.Skipped) {
        if (!result.IsRefused && row.Entry.ImportDate.isValid() && row.Entry.ImportValue != 0) {
            m_leftOut.append({row.Entry, modImportPreview::Kind(row.Kind), 0});
        }
    }
}

QStringList cStatementFiles::LeftOut() const
{
    QStringList texts;
    for (const cLeftOut& row : m_leftOut) {
        texts.append(modImportText::Row(row.Entry, m_tools.Format) + u"  ·  " + row.Reason);
    }
    return texts;
}

void cStatementFiles::StageLeftOut(const QList<int>& places)
{
    cUndoStep step(m_tools.Data, cText::Tr("Umsätze trotzdem übernommen"));
    cStaging staging(m_hive);
    const int newest = NewestRow();
    QList<cLeftOut> rest = m_leftOut;
    QList<int> taken = places;
    std::sort(taken.begin(), taken.end(), std::greater<>());
    taken.removeIf([&](int place) { return place < 0 || place >= m_leftOut.size(); });
    for (const int place : std::as_const(taken)) {
        rest.removeAt(place);
    }
    const bool isStaged = std::all_of(taken.begin(), taken.end(), [&](int place) {
        return staging.StageImportEntry(m_leftOut[place].Entry, eDuplicateTest::Skip) == eStaged::Staged;
    });
    if (!step.DoneIf(isStaged)) {
        return; // the user has been told
    }
    for (const int place : std::as_const(taken)) {
        const cLeftOut& row = m_leftOut.at(place);
        (void)cLeftOutRows(m_tools.Settings).Forget({{row.Entry, row.Repeat}});
    }
    m_leftOut = rest;
    const int staged = static_cast<int>(taken.size());
    Q_EMIT Imported({cText::Tr("{0} trotzdem übernommen.", {modImportText::Count(staged)})});
    Q_EMIT LeftOutChanged();
    const bool isFirst =
        std::all_of(m_last.begin(), m_last.end(), [](const cFile& file) { return file.Rows.isEmpty(); });
    const QList<int> rows = RowsAbove(newest);
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
    DropLeftOut();
}

void cStatementFiles::StartAfresh()
{
    for (cFile& file : m_last) {
        file.Rows.clear();
    }
    DropLeftOut();
}

void cStatementFiles::DropLeftOut()
{
    m_leftOut.clear();
    Q_EMIT LeftOutChanged();
}
