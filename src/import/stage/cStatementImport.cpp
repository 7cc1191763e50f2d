#include "import/stage/cStatementImport.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modCount.h"
#include "base/modLog.h"
#include "core/cSettings.h"
#include "import/mt940/modMT940.h"
#include "import/read/cStatementSource.h"
#include "import/read/modBookRow.h"
#include "import/read/modStatementFile.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cFetchMemory.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cKnownAccounts.h"
#include "import/stage/cLeftOutRows.h"
#include "import/stage/modCategoryClass.h"
#include "import/stage/modEqualRows.h"
#include "import/stage/modNamelessRows.h"
#include "import/stage/modRememberedAccount.h"
#include "import/stage/modStatementCurrency.h"
#include "import/stage/modStatementFormat.h"
#include "import/stage/modWholeBookings.h"
#include "import/table/cTableMemory.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <QElapsedTimer>
#include <QSet>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype quicklyRead = qsizetype{1} << 20; // bytes; the reader needs no progress below
constexpr int progressStep = 100;                     // transactions between two looks at the user interface

cImportResult Refuse(cImportResult result, const QString& message)
{
    result.IsRefused = true;
    result.Message = message;
    return result;
}

cImportResult RefuseFormat(cImportResult result, eStatementFormat format)
{
    result.Format = modStatementFormat::Name(format);
    return Refuse(std::move(result), modStatementFormat::Refusal(format) + modStatementFormat::WayOut(format));
}

cImportResult RefuseCurrency(cImportResult result, const modStatementCurrency::cOthers& others, qsizetype rows,
                             const QString& book)
{
    result.OtherCurrencies = others.Codes;
    const QString codes = others.Codes.join(u", "_s);
    return Refuse(
        std::move(result),
        others.Rows == rows
            ? cText::Tr("Der Auszug ist in {0}, das Buch in {1}. Beträge werden nicht umgerechnet.", {codes, book})
            : cText::Tr("Der Auszug ist bei {0} von {1} Umsätzen in {2}, das Buch in {3}. Beträge werden "
                        "nicht umgerechnet.",
                        {QString::number(others.Rows), QString::number(rows), codes, book}));
}

// Counts what becomes of each transaction. A database that refuses twice in a row will refuse the rest as well, and
// every refusal shows a message: it is not asked any further.
class cTally
{
public:
    explicit cTally(cImportResult& result) : m_result(result) {}

    void Count(eStaged outcome, const cImportEntry& entry, eStatementFormat format)
    {
        m_inARow = outcome == eStaged::Failed ? m_inARow + 1 : 0;
        switch (outcome) {
        case eStaged::Staged:
            ++m_result.Staged;
            if (m_result.ByFormat.isEmpty() || m_result.ByFormat.constLast().Format != format) {
                m_result.ByFormat.append({format, {}});
            }
            m_result.ByFormat.last().Ids.append(entry.ID);
            break;
        case eStaged::Zero: ++m_result.Zero; break;
        case eStaged::Duplicate: m_result.Duplicates.append(entry); break;
        case eStaged::Failed: ++m_result.Failed; break;
        }
    }

    [[nodiscard]] bool IsHopeless() const { return m_inARow >= 2; }

    void GiveUp(int rest) { m_result.Failed += rest; }

private:
    cImportResult& m_result;
    int m_inARow = 0;
};

enum class eVerdict { IsHeldBack, IsNew, MayBeKnown };

// Rows that the operation of staging would take and that are there, or were, all the same.
class cGate
{
public:
    cGate(cStaging& staging, eDuplicateTest test, const cFetchMemory* memory)
        : m_staging(staging),
          m_test(test),
          m_memory(memory)
    {
    }

    [[nodiscard]] eVerdict Judge(const cImportEntry& entry, cImportResult& result)
    {
        if (m_test == eDuplicateTest::Skip || entry.ImportValue == 0) {
            return eVerdict::MayBeKnown;
        }
        const eKnown known = m_staging.Find(entry);
        if (known == eKnown::ButBlanks) {
            result.Alike.append(entry);
            return eVerdict::IsHeldBack;
        }
        if (known == eKnown::No && m_memory != nullptr && m_memory->HasBrought(entry)) {
            result.Deleted.append(entry);
            return eVerdict::IsHeldBack;
        }
        return known == eKnown::No ? eVerdict::IsNew : eVerdict::MayBeKnown;
    }

private:
    cStaging& m_staging;
    eDuplicateTest m_test;
    const cFetchMemory* m_memory;
};

// Parts of statements may overlap, a book has nothing twice. An archive may hold both.
bool IsOfBook(const cStatementRead& read, const cImportEntry& entry)
{
    return read.IsBook && (read.Formats.isEmpty() || modBookRow::IsBook(entry));
}

// The result of a file that the user stopped: it names the file and nothing that was in it.
cImportResult Cancelled(const cImportResult& result)
{
    cImportResult cancelled;
    cancelled.File = result.File;
    cancelled.IsFetched = result.IsFetched;
    cancelled.Format = result.Format;
    cancelled.IsCancelled = true;
    return cancelled;
}

void ReportFailures(cImportResult& result)
{
    if (result.Failed > 0) {
        result.Message = cText::Tr("Die Datenbank hat {0} nicht angenommen. Sie können die Datei später noch "
                                   "einmal einlesen; was schon übernommen ist, wird dabei erkannt.",
                                   {modCount::Rows(result.Failed)});
        result.Problems.append({0, result.Message});
    }
}

const char* OutcomeOf(const cImportResult& result)
{
    return result.IsRefused ? "refused" : result.IsCancelled ? "cancelled" : "read";
}

// The message of a refusal may name the file, so it stays out.
void Trace(const cImportResult& result, qsizetype bytes, const QElapsedTimer& time)
{
    qCInfo(modLog::Import).noquote() << OutcomeOf(result) << "format" << result.Format << "bytes" << bytes
                                     << "transactions" << result.Read << "staged" << result.Staged << "duplicates"
                                     << result.Duplicates.size() << "alike" << result.Alike.size() << "deleted"
                                     << result.Deleted.size() << "zero" << result.Zero << "failed" << result.Failed
                                     << "skipped" << result.Skipped.size() << "problems" << result.Problems.size()
                                     << "accounts" << result.Accounts.size() << "ms" << time.elapsed();
}

} // namespace

cStatementImport::cStatementImport(cDataAccess& data, cImportHiveCache& hive, cTableMemory* memory,
                                   cBankBalances* balances)
    : m_data(data),
      m_hive(hive),
      m_staging(hive),
      m_memory(memory),
      m_balances(balances)
{
}

cImportResult cStatementImport::ImportFile(const QString& path, const cImportOptions& options, cProgress& progress)
{
    modStatementFile::cContent content = modStatementFile::Read(path);
    if (!content.Failure.isEmpty()) {
        cImportResult result;
        result.File = path;
        qCInfo(modLog::Import) << "the file cannot be read";
        return Refuse(std::move(result), content.Failure);
    }
    cStatementSource source = modStatementFormat::Source(path, content.Bytes, options.Table.Charset);
    content.Bytes.clear(); // the source has them
    return ImportSource(std::move(source), options, progress);
}

cImportResult cStatementImport::ImportSource(cStatementSource source, const cImportOptions& options,
                                             cProgress& progress)
{
    QElapsedTimer time;
    time.start();
    const qsizetype size = source.Bytes.size();
    cImportResult result = ReadAndStage(std::move(source), options, progress);
    Trace(result, size, time);
    return result;
}

cImportResult cStatementImport::ReadAndStage(cStatementSource source, const cImportOptions& options,
                                             cProgress& progress)
{
    cImportResult result;
    result.File = source.Name;
    const eStatementFormat format = modStatementFormat::Detect(source);
    if (modStatementFormat::Reader(format) == nullptr) {
        return RefuseFormat(std::move(result), format);
    }
    result.Kind = format;
    result.Format = modStatementFormat::Name(format);
    if (const QString reason = WhyNot(format, options); !reason.isEmpty()) {
        return Refuse(std::move(result), reason);
    }
    cStatementRead read = Read(source, format, options, progress);
    source = {}; // the rows take its room
    if (progress.IsCancelled()) {
        result.IsCancelled = true;
        return result;
    }
    result.IsAccountRemembered = read.IsAccountRemembered;
    result.Layout = read.Layout;
    result.KnownSign = read.KnownSign;
    result.AccountKey = read.AccountKey;
    const bool isOther =
        read.IsAccountRemembered && modRememberedAccount::IsContradicted(read.Entries, StagingFor(options.Run).Rows());
    result.NeedsAccount = read.NeedsAccount || isOther;
    result.HasStrayDetails = read.HasStrayDetails;
    result.NeedsAssistant = options.Uncertain == eUncertain::Ask && read.IsTable
        && (read.IsGuessed || read.NeedsAccount || read.Doubt || !read.Refusal.isEmpty());
    if (!read.Refusal.isEmpty() || result.NeedsAccount || read.Doubt || result.NeedsAssistant) {
        result.Problems = read.Problems;
        result.Skipped = read.Skipped;
        result.Unowned = read.NeedsAccount && read.Refusal.isEmpty() ? read.Entries : cImportEntryList();
        if (read.Refusal.isEmpty() && read.Doubt && !result.NeedsAccount) {
            result.Doubt = read.Doubt;
            return Refuse(std::move(result), modStatementFile::OpenSign());
        }
        const QString reason = isOther ? modStatementFile::OtherAccount(read.Entries.constFirst().ImportAccount)
                                       : modStatementFile::NoAccount();
        return Refuse(std::move(result), read.Refusal.isEmpty() ? reason : read.Refusal);
    }
    const modStatementCurrency::cOthers others =
        modStatementCurrency::Others(read, options.BookCurrency, StagingFor(options.Run), m_balances);
    if (others.Rows > 0) {
        return RefuseCurrency(std::move(result), others, read.Entries.size(), options.BookCurrency);
    }
    if (read.IsGuessed) {
        read.Problems.prepend({0, modStatementFile::GuessedColumns()});
    }
    progress.showProgressBar(static_cast<int>(read.Entries.size()));
    StageAsOne(std::move(read), options, progress, result);
    return result.IsCancelled ? Cancelled(result) : result;
}

void cStatementImport::StageAsOne(cStatementRead read, const cImportOptions& options, cProgress& progress,
                                  cImportResult& result, const cFetchedStatement* fetched)
{
    // What was staged stays when the program is killed: the next reading of the file passes over it.
    const cUndoStep step(m_data, cText::Tr("Kontoauszug eingelesen"), cJournal::eWrites::InPortions);
    cUndoPart part(m_data);
    const int before = RowCount();
    Stage(read, options, progress, result, fetched == nullptr ? nullptr : fetched->Memory);
    if (result.IsCancelled) {
        part.Revert();
        return;
    }
    if (fetched != nullptr) {
        NoteFetch(read, *fetched, options.Run, result);
    }
    if (!part.Done() || result.Failed > 0) {
        const int staged = std::max(0, RowCount() - before); // without the portions that are lost
        for (cFormatRows& rows : result.ByFormat) {
            rows.Ids.removeIf([&](int id) { return !m_hive.GetImportHive().GetImportEntryByID(id); });
        }
        result.Failed += result.Staged - staged;
        result.Staged = staged;
    }
}

int cStatementImport::RowCount()
{
    return static_cast<int>(m_hive.GetImportHive().getImportEntryList().size());
}

// Why the file is not even read; empty when nothing speaks against it.
QString cStatementImport::WhyNot(eStatementFormat format, const cImportOptions& options) const
{
    if (m_data.IsReadOnly() && options.Run == eStagingRun::Write) {
        return cText::Tr("Die Datenbank ist nur zum Lesen geöffnet. Kontoauszüge können nicht übernommen werden.");
    }
    const bool isForTables = options.Table.Map || options.Table.Sign || !options.Table.Profile.isEmpty();
    if (isForTables && !modStatementFormat::IsTable(format)) {
        return cText::Tr("Spalten und Aufbau lassen sich nur bei Tabellen angeben. Die Datei ist keine: {0}",
                         {modStatementFormat::Name(format)});
    }
    return {};
}

// A large file is read while the progress box stays alive. Its thread gets a memory of its own, because the settings
// belong to this one.
cStatementRead cStatementImport::Read(const cStatementSource& source, eStatementFormat format,
                                      const cImportOptions& options, cProgress& progress)
{
    const modStatementFormat::cReader reader = modStatementFormat::Reader(format);
    cReadOptions readOptions{options.DefaultAccount, options.MissingPurpose, options.Table, m_memory,
                             options.StrayDetails,   options.OfxPayee};
    if (source.Bytes.size() <= quicklyRead) {
        return reader(source, readOptions);
    }
    cSettings settings(m_data);
    const cTableMemory memory(settings);
    readOptions.Memory = m_memory == nullptr ? nullptr : &memory;
    cStatementRead read;
    progress.Run([&] { read = reader(source, readOptions); });
    return read;
}

qint64 cStatementImport::ImportMT940(cProgress& progress, const cImportOptions& options, const QString& text,
                                     const QString& defaultAccount)
{
    return ImportFetched({.Name = {}, .Account = defaultAccount, .Mt940 = text}, options, progress)
        .ClosingBalance.value_or(0);
}

cImportResult cStatementImport::ImportFetched(const cFetchedStatement& fetched, const cImportOptions& options,
                                              cProgress& progress)
{
    QElapsedTimer time;
    time.start();
    cImportResult result;
    result.File = fetched.Name;
    result.IsFetched = true;
    result.Kind = fetched.Camt.isEmpty() ? eStatementFormat::Mt940 : eStatementFormat::Camt;
    if (const QString reason = WhyNot(eStatementFormat::Mt940, options); !reason.isEmpty()) {
        return Refuse(std::move(result), reason);
    }
    progress.showProgressBar(modMT940::ProgressMaximum(fetched.Mt940));
    cStatementRead read;
    const auto work = [&] { read = fetched.Read(options); };
    if (fetched.Size() <= quicklyRead) {
        work();
    } else {
        progress.Run(work);
    }
    progress.addProgressValue(static_cast<int>(fetched.Mt940.count(u":86:")));
    if (!read.Refusal.isEmpty()) {
        result.Problems = read.Problems;
        result.HasStrayDetails = read.HasStrayDetails;
        return Refuse(std::move(result), read.Refusal);
    }
    const modStatementCurrency::cOthers others =
        modStatementCurrency::Others(read, options.BookCurrency, StagingFor(options.Run), m_balances);
    if (others.Rows > 0) {
        return RefuseCurrency(std::move(result), others, read.Entries.size(), options.BookCurrency);
    }
    fetched.AddBalance(read);
    StageAsOne(std::move(read), options, progress, result, &fetched);
    Trace(result, fetched.Size(), time);
    return result.IsCancelled ? Cancelled(result) : result;
}

// The account's form in the bookings, and what the next fetch has to know.
void cStatementImport::NoteFetch(const cStatementRead& read, const cFetchedStatement& fetched, eStagingRun run,
                                 cImportResult& result)
{
    result.Number = !read.Entries.isEmpty() ? read.Entries.first().ImportAccount
        : !read.Balances.isEmpty()          ? read.Balances.first().Account
                                            : fetched.Account;
    if (fetched.Memory == nullptr || run == eStagingRun::Try) {
        return;
    }
    // Parts of an answer may overlap: what they have more often than the book is not worth remembering.
    QHash<size_t, int> numbers;
    cImportEntryList rows = read.Entries;
    rows.removeIf([&](const cImportEntry& row) {
        const int number = ++numbers[row.EqualHash()];
        return number > 1 && number > m_staging.AllButBlanks(row).size();
    });
    if (!fetched.Memory->Note(rows, fetched.LastDay)) {
        result.Problems.append({0, cText::Tr("Was dieser Abruf brachte, konnte nicht vermerkt werden.")});
    }
}

cStaging& cStatementImport::StagingFor(eStagingRun run)
{
    if (run == eStagingRun::Write) {
        m_trial.reset(); // it would not know what is written now
        return m_staging;
    }
    return m_trial ? *m_trial : m_trial.emplace(m_hive, run);
}

// What a row is, in the form in which the book knows it from other files.
void cStatementImport::FitToBook(cStatementRead& read, cKnownAccounts& known, const cImportOptions& options,
                                 eStatementFormat kind)
{
    known.UseIn(read);
    if (options.Duplicates == eDuplicateTest::Test) {
        cStaging& staging = StagingFor(options.Run);
        modNamelessRows::UseIn(read, staging);
        modWholeBookings::UseIn(read, staging);
    }
    modCategoryClass::CutFrom(read, kind, m_data);
}

void cStatementImport::Stage(cStatementRead& read, const cImportOptions& options, cProgress& progress,
                             cImportResult& result, const cFetchMemory* memory)
{
    cStaging& staging = StagingFor(options.Run);
    staging.StartSource(read.Entries.size());
    cKnownAccounts known(staging.Accounts(), m_balances);
    FitToBook(read, known, options, result.Kind);
    result.Read = static_cast<int>(read.Entries.size());
    result.ClosingBalance = read.ClosingBalance;
    result.Problems = read.Problems;
    result.Skipped = read.Skipped;
    result.Accounts = cImportHive::AccountsOf(read.Entries);
    result.Book = modForeignNames::Of(read, options.DefaultAccount);
    cTally tally(result);
    cGate gate(staging, options.Duplicates, memory);
    for (int i = 0; i < result.Read; ++i) {
        if (i > 0 && i % progressStep == 0) {
            progress.addProgressValue(progressStep);
        }
        if (progress.IsCancelled()) {
            result.IsCancelled = true;
            break;
        }
        cImportEntry& entry = read.Entries[i];
        entry.Validate();
        const eVerdict verdict = gate.Judge(entry, result);
        if (verdict == eVerdict::IsHeldBack) {
            continue;
        }
        const eStaged outcome = staging.StageImportEntry(
            entry, verdict == eVerdict::IsNew ? eDuplicateTest::Skip : options.Duplicates); // nothing is asked twice
        tally.Count(outcome, entry, read.FormatAt(i).value_or(result.Kind));
        if (outcome == eStaged::Staged && options.Run == eStagingRun::Try) {
            result.Rows.append(entry);
        }
        if (tally.IsHopeless()) {
            tally.GiveUp(result.Read - i - 1);
            break;
        }
    }
    progress.addProgressValue(result.Read - result.Read / progressStep * progressStep);
    if (!result.IsCancelled && result.Failed == 0) {
        SettleEqual(read, options, result, memory);
    }
    ReportFailures(result);
    if (m_memory != nullptr && read.Sign && options.Run == eStagingRun::Write) {
        result.IsSignKept = m_memory->SaveSign(read.SignKey, *read.Sign);
    }
    KeepBalances(read, known, options.Run, result);
}

void cStatementImport::SettleEqual(const cStatementRead& read, const cImportOptions& options, cImportResult& result,
                                   const cFetchMemory* memory)
{
    using modEqualRows::eProof;
    cStaging& staging = StagingFor(options.Run);
    modEqualRows::Find(read, staging, memory, result);
    if (result.Repeats.isEmpty()) {
        return;
    }
    cSettings settings(m_data);
    const QList<eProof> proofs = modEqualRows::Prove(result.Repeats, staging.Rows(), [&](const QString& account) {
        return cBankBalances(settings).With(account, read.Balances, read.Entries);
    });
    cRepeatList open;
    cTally tally(result);
    for (qsizetype i = 0; i < proofs.size(); ++i) {
        cRepeat repeat = result.Repeats.at(i);
        repeat.WasLeftOut = cLeftOutRows(settings).Has(repeat);
        const bool isOpen = proofs.at(i) == eProof::None;
        const bool isTold = isOpen && repeat.IsTold;
        const bool isTaken = proofs.at(i) == eProof::Real || isTold || (isOpen && options.Equal == eEqualRows::Take)
            || IsOfBook(read, repeat.Entry);
        if (!isTaken && isOpen) {
            open.append(repeat);
            continue;
        }
        result.Settled.append(repeat);
        if (!isTaken) {
            result.Duplicates.append(repeat.Entry);
        } else if (!tally.IsHopeless()) {
            const eStaged outcome = staging.StageImportEntry(repeat.Entry, eDuplicateTest::Skip);
            tally.Count(outcome, repeat.Entry, result.Kind);
            result.Proven += proofs.at(i) == eProof::Real ? 1 : 0;
            result.Told += isTold ? 1 : 0;
            if (options.Run == eStagingRun::Try) {
                result.Rows.append(repeat.Entry);
            }
        }
    }
    result.Repeats = open;
}

namespace {

QDate FirstDay(const cImportEntryList& rows, const QString& account)
{
    QDate first;
    for (const cImportEntry& row : rows) {
        const bool isOf = row.ImportAccount == account && row.ImportDate.isValid();
        first = isOf && (!first.isValid() || row.ImportDate < first) ? row.ImportDate : first;
    }
    return first;
}

qsizetype CountBefore(const cBankBalanceList& balances, QDate day)
{
    return std::count_if(balances.begin(), balances.end(),
                         [day](const cBankBalance& balance) { return balance.Day < day; });
}

} // namespace

// Of a file that was taken in part, the balances would only say that something is missing.
void cStatementImport::KeepBalances(const cStatementRead& read, const cKnownAccounts& known, eStagingRun run,
                                    cImportResult& result)
{
    const bool isComplete = !result.IsCancelled && result.Failed == 0;
    if (m_balances == nullptr || m_data.IsReadOnly() || run != eStagingRun::Write || !isComplete) {
        return;
    }
    if (!known.KeepBankCodes(*m_balances)) {
        result.Problems.append({0, cText::Tr("Die Bankleitzahl des Kontos konnte nicht gespeichert werden.")});
    }
    QSet<QString> seen; // each of thousands of days would go through all of them
    for (const cAccountBalance& balance : read.Balances) {
        const QString& account = balance.Account;
        if (seen.contains(account) || result.FirstBalances.contains(account)) {
            continue;
        }
        seen.insert(account);
        const cBankBalanceList before = m_balances->Of(account);
        const cBankBalanceList all = m_balances->With(account, read.Balances, read.Entries);
        const QDate first = FirstDay(m_staging.Rows(), account);
        const bool isEarlier = before.isEmpty() || all.constFirst().Day < before.constFirst().Day
            || CountBefore(all, first) > CountBefore(before, first);
        // Rows that were left out have kept an earlier balance from telling the first one.
        const bool isCleared = std::any_of(result.Settled.begin(), result.Settled.end(), [&](const cRepeat& repeat) {
            return repeat.WasLeftOut && repeat.Entry.ImportAccount == account;
        });
        if (isEarlier || isCleared) {
            result.FirstBalances.append(account);
        }
    }
    if (!m_balances->Add(read.Balances, read.Entries) || !m_balances->AddEarly(read.EarlyRows)) {
        result.Problems.append({0, cText::Tr("Der Kontostand der Bank konnte nicht gespeichert werden.")});
    }
}
