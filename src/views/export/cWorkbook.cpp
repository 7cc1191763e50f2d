#include "views/export/cWorkbook.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "base/modModule.h"
#include "core/cAmountFormat.h"
#include "import/zip/modZip.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

using fnMake = cWorkbook* (*)(const QString&, const QString&);

const QString module = u"kontorelle-xlsx.so"_s;

// The file counts days from here on; earlier ones can only stand there as text.
const QDate firstDay(1900, 3, 1);

// "0,00 €" gives `#,##0.00 "€"`. The signs of the numbers are those of the reader's system.
QString MoneyPattern(const cAmountFormat& format)
{
    const QString zero = format.Cents(0);
    const auto isOfNumber = [](QChar sign) { return sign.isDigit() || sign == u',' || sign == u'.'; };
    qsizetype first = 0;
    while (first < zero.size() && !zero.at(first).isDigit()) {
        ++first;
    }
    qsizetype end = first;
    while (end < zero.size() && isOfNumber(zero.at(end))) {
        ++end;
    }
    const auto quoted = [](const QString& text) {
        return text.isEmpty() ? QString() : u'"' + QString(text).remove(u'"') + u'"';
    };
    const QString number = quoted(zero.left(first)) + u"#,##0.00"_s + quoted(zero.mid(end));
    return number + u";-"_s + number;
}

// Whether a document of XML, "<?xml …?>\n<name …>…", reaches its "</name>".
bool HasEnd(const QByteArray& xml)
{
    const qsizetype start = xml.indexOf('<', xml.indexOf("?>")) + 1;
    const qsizetype end = std::min(xml.indexOf(' ', start), xml.indexOf('>', start));
    const QByteArray closing = "</" + xml.mid(start, end - start) + '>';
    return start > 0 && end > start && xml.trimmed().endsWith(closing);
}

// The library does not notice when its temporary files find no room on the disk: the parts are cut then.
bool IsWhole(const QByteArray& zip)
{
    const QStringList names = modZip::Names(zip);
    return !names.isEmpty() && std::all_of(names.begin(), names.end(), [&](const QString& name) {
        const std::optional<QByteArray> part = modZip::Read(zip, name, std::numeric_limits<int>::max());
        return part && HasEnd(*part);
    });
}

} // namespace

std::unique_ptr<cWorkbook> cWorkbook::Make(const QString& sheet, const cAmountFormat& format)
{
    static const auto make = modModule::Find<fnMake>(module, "MakeWorkbook");
    return std::unique_ptr<cWorkbook>(make == nullptr ? nullptr : make(sheet, MoneyPattern(format)));
}

QString cWorkbook::Missing()
{
    return modModule::Missing(module);
}

void cWorkbook::WriteDate(qsizetype row, int column, QDate day)
{
    if (day < firstDay) {
        WriteText(row, column, modDate::ToGerman(day), Plain);
    } else {
        PutDay(row, column, day);
    }
}

void cWorkbook::WriteMoney(qsizetype row, int column, qint64 cents, eStyle style)
{
    WriteNumber(row, column, modAmount::ToEuros(cents), style);
}

void cWorkbook::WriteFormula(qsizetype row, int column, const QString& formula, qint64 cents, eStyle style)
{
    PutFormula(row, column, formula, modAmount::ToEuros(cents), style);
}

QByteArray cWorkbook::Close()
{
    const QByteArray bytes = Finish();
    return IsWhole(bytes) ? bytes : QByteArray();
}
