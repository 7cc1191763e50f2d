#include "import/cStatementImport.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "import/cStatementSource.h"
#include "import/modAccountNumber.h"
#include "import/modMT940.h"
#include "import/modStatementFormat.h"
#include "store/cDataAccess.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

constexpr qint64 largestFile = qint64{512} * 1024 * 1024; // bytes; years of statements stay far below
constexpr int progressStep = 100;                         // transactions between two looks at the user interface

cImportResult Refuse(cImportResult result, const QString& message)
{
    result.IsRefused = true;
    result.Message = message;
    return result;
}

// The bytes of the file, or the reason why there are none.
struct cFileContent
{
    QByteArray Bytes;
    QString Failure;
};

cFileContent ReadFile(const QString& path)
{
    const QString shownPath = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, cText::Tr("Die Datei kann nicht geöffnet werden: {0}", {shownPath})};
    }
    if (file.size() > largestFile) {
        return {{}, cText::Tr("Die Datei ist zu groß für einen Kontoauszug: {0}", {shownPath})};
    }
    cFileContent content{file.readAll(), {}};
    if (file.error() != QFileDevice::NoError) {
        content.Failure = cText::Tr("Die Datei kann nicht gelesen werden: {0}", {shownPath});
    } else if (content.Bytes.isEmpty()) {
        content.Failure = cText::Tr("Die Datei ist leer: {0}", {shownPath});
    }
    return content;
}

cImportResult RefuseFormat(cImportResult result, eStatementFormat format)
{
    result.Format = modStatementFormat::Name(format);
    return Refuse(std::move(result), modStatementFormat::Refusal(format));
}

// The form in which an account is staged: statements in one format name it by its number, others by its IBAN.
class cKnownAccounts
{
public:
    explicit cKnownAccounts(QStringList staged) : m_staged(std::move(staged)) {}

    // The number itself when nothing is staged of the account, and when it could be several.
    [[nodiscard]] const QString& FormOf(const QString& number)
    {
        auto known = m_forms.find(number);
        if (known == m_forms.end()) {
            known = m_forms.insert(number, Find(number));
        }
        return *known;
    }

private:
    [[nodiscard]] QString Find(const QString& number) const
    {
        if (m_staged.contains(number)) {
            return number;
        }
        QStringList same;
        std::copy_if(m_staged.begin(), m_staged.end(), std::back_inserter(same),
                     [&](const QString& staged) { return modAccountNumber::IsSame(number, {}, staged); });
        return same.size() == 1 ? same.first() : number;
    }

    QStringList m_staged;
    QHash<QString, QString> m_forms;
};

// Gives every row the form of its account that is staged already.
void UseKnownAccounts(const QStringList& staged, cStatementRead& read)
{
    cKnownAccounts known(staged);
    for (cImportEntry& entry : read.Entries) {
        entry.ImportAccount = known.FormOf(entry.ImportAccount);
    }
    for (cSkippedRow& row : read.Skipped) {
        row.Entry.ImportAccount = known.FormOf(row.Entry.ImportAccount);
    }
    for (cAccountBalance& balance : read.Balances) {
        balance.Account = known.FormOf(balance.Account);
    }
}

// Counts what becomes of each transaction. A database that refuses twice in a row will refuse the rest as well, and
// every refusal shows a message: it is not asked any further.
class cTally
{
public:
    explicit cTally(cImportResult& result) : m_result(result) {}

    void Count(eStaged outcome, const cImportEntry& entry)
    {
        m_inARow = outcome == eStaged::Failed ? m_inARow + 1 : 0;
        switch (outcome) {
        case eStaged::Staged: ++m_result.Staged; break;
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

void ReportFailures(cImportResult& result)
{
    if (result.Failed > 0) {
        result.Message = cText::Tr("Die Datenbank hat {0} Umsätze nicht angenommen. Sie können die Datei später noch "
                                   "einmal einlesen; was schon übernommen ist, wird dabei erkannt.",
                                   {QString::number(result.Failed)});
        result.Problems.append({0, result.Message});
    }
}

} // namespace

cStatementImport::cStatementImport(cDataAccess& data, cImportHiveCache& hive, const cTableMemory* memory)
    : m_data(data),
      m_hive(hive),
      m_staging(hive),
      m_memory(memory)
{
}

cImportResult cStatementImport::ImportFile(const QString& path, const cImportOptions& options, cProgress& progress)
{
    const cFileContent content = ReadFile(path);
    if (!content.Failure.isEmpty()) {
        cImportResult result;
        result.File = path;
        return Refuse(std::move(result), content.Failure);
    }
    return Import(modStatementFormat::Source(path, content.Bytes, options.Table.Charset), options, progress);
}

cImportResult cStatementImport::ImportText(const QString& path, const QString& text, const cImportOptions& options,
                                           cProgress& progress)
{
    return Import({path, {}, text}, options, progress);
}

cImportResult cStatementImport::Import(const cStatementSource& source, const cImportOptions& options,
                                       cProgress& progress)
{
    cImportResult result;
    result.File = source.Name;
    const eStatementFormat format = modStatementFormat::Detect(source);
    const modStatementFormat::cReader reader = modStatementFormat::Reader(format);
    if (reader == nullptr) {
        return RefuseFormat(std::move(result), format);
    }
    result.Format = modStatementFormat::Name(format);
    if (m_data.IsReadOnly() && options.Run == eStagingRun::Write) {
        return Refuse(std::move(result),
                      cText::Tr("Die Datenbank ist nur zum Lesen geöffnet. Kontoauszüge können nicht "
                                "übernommen werden."));
    }
    cStatementRead read = reader(source, {options.DefaultAccount, options.MissingPurpose, options.Table, m_memory});
    result.Layout = read.Layout;
    result.AccountKey = read.AccountKey;
    result.NeedsAccount = read.NeedsAccount;
    if (!read.Refusal.isEmpty() || read.NeedsAccount) {
        result.Problems = read.Problems;
        result.Skipped = read.Skipped;
        return Refuse(std::move(result),
                      read.Refusal.isEmpty() ? cText::Tr("Es muss eine Kontonummer eingegeben werden, um die Daten "
                                                         "einem Konto zuzuordnen.")
                                             : read.Refusal);
    }
    progress.showProgressBar(static_cast<int>(read.Entries.size()));
    Stage(std::move(read), options, progress, result);
    return result;
}

double cStatementImport::ImportMT940(cProgress& progress, const cImportOptions& options, const QString& text,
                                     const QString& defaultAccount)
{
    progress.showProgressBar(modMT940::ProgressMaximum(text));
    cStatementRead read = modMT940::Read(text, defaultAccount);
    progress.addProgressValue(static_cast<int>(text.count(u":86:")));
    cImportResult result;
    Stage(std::move(read), options, progress, result);
    return modAmount::ToEuros(result.ClosingBalance.value_or(0));
}

cStaging& cStatementImport::StagingFor(eStagingRun run)
{
    if (run == eStagingRun::Write) {
        m_trial.reset(); // it would not know what is written now
        return m_staging;
    }
    return m_trial ? *m_trial : m_trial.emplace(m_hive, run);
}

void cStatementImport::Stage(cStatementRead read, const cImportOptions& options, cProgress& progress,
                             cImportResult& result)
{
    cStaging& staging = StagingFor(options.Run);
    UseKnownAccounts(staging.Accounts(), read);
    result.Read = static_cast<int>(read.Entries.size());
    result.ClosingBalance = read.ClosingBalance;
    result.Problems = read.Problems;
    result.Skipped = read.Skipped;
    result.Accounts = cImportHive::AccountsOf(read.Entries);
    cTally tally(result);
    for (int i = 0; i < result.Read; ++i) {
        if (i > 0 && i % progressStep == 0) {
            progress.addProgressValue(progressStep);
        }
        if (progress.IsCancelled()) {
            result.IsCancelled = true;
            break;
        }
        cImportEntry entry = read.Entries.at(i);
        const eStaged outcome = staging.StageImportEntry(entry, options.Duplicates);
        tally.Count(outcome, entry);
        if (outcome == eStaged::Staged && options.Run == eStagingRun::Try) {
            result.Rows.append(entry);
        }
        if (tally.IsHopeless()) {
            tally.GiveUp(result.Read - i - 1);
            break;
        }
    }
    progress.addProgressValue(result.Read - result.Read / progressStep * progressStep);
    ReportFailures(result);
}
