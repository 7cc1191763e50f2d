#include "import/cStatementImport.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modAmount.h"
#include "import/cStatementSource.h"
#include "import/modMT940.h"
#include "import/modStatementFormat.h"
#include "store/cDataAccess.h"

#include <QDir>
#include <QFile>

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

QStringList AccountsOf(const cImportEntryList& entries)
{
    QStringList accounts;
    for (const cImportEntry& entry : entries) {
        if (accounts.isEmpty() || (accounts.last() != entry.ImportAccount && !accounts.contains(entry.ImportAccount))) {
            accounts.append(entry.ImportAccount);
        }
    }
    return accounts;
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
    if (m_data.IsReadOnly()) {
        return Refuse(std::move(result),
                      cText::Tr("Die Datenbank ist nur zum Lesen geöffnet. Kontoauszüge können nicht "
                                "übernommen werden."));
    }
    const cStatementRead read =
        reader(source, {options.DefaultAccount, options.MissingPurpose, options.Table, m_memory});
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
    Stage(read, options, progress, result);
    return result;
}

double cStatementImport::ImportMT940(cProgress& progress, const cImportOptions& options, const QString& text,
                                     const QString& defaultAccount)
{
    progress.showProgressBar(modMT940::ProgressMaximum(text));
    const cStatementRead read = modMT940::Read(text, defaultAccount);
    progress.addProgressValue(static_cast<int>(text.count(u":86:")));
    cImportResult result;
    Stage(read, options, progress, result);
    return modAmount::ToEuros(read.ClosingBalance.value_or(0));
}

void cStatementImport::Stage(const cStatementRead& read, const cImportOptions& options, cProgress& progress,
                             cImportResult& result)
{
    result.Read = static_cast<int>(read.Entries.size());
    result.ClosingBalance = read.ClosingBalance;
    result.Problems = read.Problems;
    result.Skipped = read.Skipped;
    result.Accounts = AccountsOf(read.Entries);
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
        tally.Count(m_staging.StageImportEntry(entry, options.Duplicates), entry);
        if (tally.IsHopeless()) {
            tally.GiveUp(result.Read - i - 1);
            break;
        }
    }
    progress.addProgressValue(result.Read - result.Read / progressStep * progressStep);
    ReportFailures(result);
}
