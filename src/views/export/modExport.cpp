#include "views/export/modExport.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "model/modPeople.h"
#include "model/modReceiptName.h"
#include "model/modWord.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using cRow = cEntryExtract::cRow;

struct cFormat
{
    modExport::eFormat Format;
    const char* Name; // German, for the file dialog
    QString Ending;
    modExport::cResult (*Write)(const modExport::cJob& job);
};

const std::array<cFormat, 4>& Formats()
{
    using enum modExport::eFormat;
    static const std::array<cFormat, 4> formats{
        cFormat{Csv, QT_TRANSLATE_NOOP("cText", "CSV-Datei"), u"csv"_s, modExport::Csv},
        cFormat{Xlsx, QT_TRANSLATE_NOOP("cText", "Excel-Datei"), u"xlsx"_s, modExport::Xlsx},
        cFormat{Html, QT_TRANSLATE_NOOP("cText", "HTML-Datei"), u"html"_s, modExport::Html},
        cFormat{Qif, QT_TRANSLATE_NOOP("cText", "QIF-Datei"), u"qif"_s, modExport::Qif},
    };
    return formats;
}

QString DateText(const cRow& row)
{
    return modDate::ToGerman(row.Entry.EntryDate);
}

QString TypeText(const cRow& row)
{
    return modWord::EntryTypes().ToShown(row.Entry.EntryType);
}

QString IntervalText(const cRow& row)
{
    const QString interval = modWord::Intervals().ToShown(row.Entry.EntryInterval);
    return row.Entry.IsCorrected ? cText::Tr("{0}, korrigiert", {interval}) : interval;
}

QString TargetText(const cRow& row)
{
    return row.Entry.IsTransfer() ? row.Entry.EntryAccountMove : QString();
}

} // namespace

modExport::cResult modExport::Write(eFormat format, const cJob& job)
{
    const auto* const found = std::find_if(Formats().begin(), Formats().end(),
                                           [format](const cFormat& each) { return each.Format == format; });
    job.Progress.showProgressBar(static_cast<int>(job.Extract.Rows.size()));
    cResult result = found->Write(job);
    job.Progress.hideProgressBar();
    return result;
}

QString modExport::Filter()
{
    QStringList parts;
    for (const cFormat& format : Formats()) {
        parts << cText::Tr(format.Name) << u"*."_s + format.Ending;
    }
    return (parts << cText::Tr("Alle Dateien") << u"*.*"_s).join(u'|');
}

std::optional<modExport::eFormat> modExport::FormatOf(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending.isEmpty() || ending == "txt"_L1) {
        return eFormat::Csv;
    }
    return FormatByName(ending == "htm"_L1 ? u"html"_s : ending);
}

std::optional<modExport::eFormat> modExport::FormatByName(const QString& name)
{
    const auto* const found = std::find_if(Formats().begin(), Formats().end(),
                                           [&name](const cFormat& each) { return each.Ending == name.toLower(); });
    return found == Formats().end() ? std::nullopt : std::optional(found->Format);
}

QStringList modExport::Names()
{
    QStringList names;
    for (const cFormat& format : Formats()) {
        names.append(format.Ending);
    }
    return names;
}

std::vector<modExport::cColumn> modExport::Columns(const cEntryExtract& extract)
{
    std::vector<cColumn> columns{
        {QT_TRANSLATE_NOOP("cText", "Datum"), eContent::Date, 12, DateText},
        {QT_TRANSLATE_NOOP("cText", "Buchungsart"), eContent::Text, 13, TypeText},
        {QT_TRANSLATE_NOOP("cText", "Kategorie"), eContent::Text, 30,
         [](const cRow& row) { return row.Entry.EntryCategory; }},
        {QT_TRANSLATE_NOOP("cText", "Konto"), eContent::Text, 20,
         [](const cRow& row) { return row.Entry.EntryAccount; }},
    };
    if (extract.HasTransfers()) {
        columns.push_back({QT_TRANSLATE_NOOP("cText", "Zielkonto"), eContent::Text, 20, TargetText});
    }
    columns.push_back({QT_TRANSLATE_NOOP("cText", "Beschreibung"), eContent::Text, 45,
                       [](const cRow& row) { return row.Entry.EntryDescription; }});
    columns.push_back({QT_TRANSLATE_NOOP("cText", "Intervall"), eContent::Text, 16, IntervalText});
    if (extract.HasPayers()) {
        columns.push_back({QT_TRANSLATE_NOOP("cText", "Bezahlt von"), eContent::Text, 14,
                           [](const cRow& row) { return modPeople::Payer(row.Entry); }});
    }
    if (!extract.Receipts().isEmpty()) {
        columns.push_back({QT_TRANSLATE_NOOP("cText", "Belege"), eContent::Text, 30,
                           [](const cRow& row) { return modReceiptName::Of(row.Entry).join(u"; "_s); }});
    }
    columns.push_back({QT_TRANSLATE_NOOP("cText", "Betrag"), eContent::Money, 14, nullptr,
                       [](const cRow& row) { return std::optional(row.Cents); }});
    if (extract.HasBalances()) {
        columns.push_back({QT_TRANSLATE_NOOP("cText", "Saldo"), eContent::Money, 14, nullptr,
                           [](const cRow& row) { return row.Balance; }});
    }
    return columns;
}

std::vector<modExport::cSum> modExport::Sums(const cEntryExtract& extract)
{
    std::vector<cSum> sums;
    if (extract.Start) {
        sums.push_back({QT_TRANSLATE_NOOP("cText", "Startguthaben"), *extract.Start});
    }
    sums.push_back({QT_TRANSLATE_NOOP("cText", "Einnahmen"), extract.Income});
    sums.push_back({QT_TRANSLATE_NOOP("cText", "Ausgaben"), -extract.Expense});
    sums.push_back({QT_TRANSLATE_NOOP("cText", "Summe"), extract.Total()});
    return sums;
}

bool modExport::Count(cProgress& progress, qsizetype done)
{
    constexpr int step = 1000;
    if (done % step != 0) {
        return true;
    }
    progress.addProgressValue(step);
    return !progress.IsCancelled();
}
