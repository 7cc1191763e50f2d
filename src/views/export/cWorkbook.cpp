#include "views/export/cWorkbook.h"

#include "base/modAmount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "import/zip/modZip.h"

#include <QFile>

#include <xlsxwriter.h>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestText = 32767; // of a cell

// The file counts days from here on; earlier ones can only stand there as text.
const QDate firstDay(1900, 3, 1);

constexpr lxw_color_t groupColor = 0xE8ECF0;
constexpr lxw_color_t headColor = 0xD5DCE4;

lxw_row_t Row(qsizetype row)
{
    return static_cast<lxw_row_t>(row);
}

lxw_col_t Column(int column)
{
    return static_cast<lxw_col_t>(column);
}

// A file of XML may not hold every sign: one of these and no program opens it any more.
QByteArray Bytes(QString text)
{
    for (QChar& c : text) {
        const bool isControl = c < u' ' && c != u'\t' && c != u'\n' && c != u'\r';
        if (isControl || c >= u'\uFFFE') {
            c = QChar::ReplacementCharacter;
        }
    }
    return text.toUtf8();
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

cWorkbook::cWorkbook(const QString& sheet, const QString& moneyPattern)
{
    QByteArray folder = QFile::encodeName(m_folder.path());
    lxw_workbook_options options{};
    options.tmpdir = folder.data(); // the book keeps a copy
    m_book = workbook_new_opt(QFile::encodeName(Path()).constData(), &options);
    m_sheet = workbook_add_worksheet(m_book, Bytes(sheet).constData());
    MakeStyles(moneyPattern);
}

cWorkbook::~cWorkbook()
{
    if (m_book != nullptr) {
        lxw_workbook_free(m_book); // given up before the end
    }
}

void cWorkbook::MakeStyles(const QString& moneyPattern)
{
    const QByteArray money = Bytes(moneyPattern);
    for (int style = Plain; style < StyleCount; ++style) {
        lxw_format* format = workbook_add_format(m_book);
        m_styles.push_back(format);
        if (style == Money || style == GroupMoney || style == SumMoney) {
            format_set_num_format(format, money.constData());
        }
        if (style == Date) {
            format_set_num_format(format, "dd.mm.yyyy");
            format_set_align(format, LXW_ALIGN_LEFT);
        }
        if (style >= Head) {
            format_set_bold(format);
        }
        if (style == Head || style == GroupName || style == GroupMoney) {
            format_set_bg_color(format, style == Head ? headColor : groupColor);
        }
    }
    format_set_bottom(m_styles[Head], LXW_BORDER_THIN);
}

// "0,00 €" gives `#,##0.00 "€"`. The signs of the numbers are those of the reader's system.
QString cWorkbook::MoneyPattern(const cAmountFormat& format)
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

void cWorkbook::SetTitle(const QString& title, const QString& comment)
{
    QByteArray titleBytes = Bytes(title);
    QByteArray commentBytes = Bytes(comment);
    lxw_doc_properties properties{};
    properties.title = titleBytes.data(); // copied by the library
    properties.comments = commentBytes.data();
    (void)workbook_set_properties(m_book, &properties);
}

void cWorkbook::SetColumnWidth(int column, int characters)
{
    (void)worksheet_set_column(m_sheet, Column(column), Column(column), characters, nullptr);
}

void cWorkbook::WriteText(qsizetype row, int column, const QString& text, eStyle style)
{
    const QByteArray bytes = Bytes(text.left(longestText));
    const lxw_error error =
        worksheet_write_string(m_sheet, Row(row), Column(column), bytes.constData(), m_styles[style]);
    m_isComplete = m_isComplete && error == LXW_NO_ERROR;
}

void cWorkbook::WriteDate(qsizetype row, int column, QDate day)
{
    if (day < firstDay) {
        WriteText(row, column, modDate::ToGerman(day), Plain);
        return;
    }
    lxw_datetime moment{};
    moment.year = day.year();
    moment.month = day.month();
    moment.day = day.day();
    const lxw_error error = worksheet_write_datetime(m_sheet, Row(row), Column(column), &moment, m_styles[Date]);
    m_isComplete = m_isComplete && error == LXW_NO_ERROR;
}

void cWorkbook::WriteMoney(qsizetype row, int column, qint64 cents, eStyle style)
{
    const lxw_error error =
        worksheet_write_number(m_sheet, Row(row), Column(column), modAmount::ToEuros(cents), m_styles[style]);
    m_isComplete = m_isComplete && error == LXW_NO_ERROR;
}

void cWorkbook::WriteCount(qsizetype row, int column, int count, eStyle style)
{
    const lxw_error error = worksheet_write_number(m_sheet, Row(row), Column(column), count, m_styles[style]);
    m_isComplete = m_isComplete && error == LXW_NO_ERROR;
}

void cWorkbook::WriteFormula(qsizetype row, int column, const QString& formula, qint64 cents, eStyle style)
{
    const lxw_error error = worksheet_write_formula_num(m_sheet, Row(row), Column(column), formula.toUtf8().constData(),
                                                        m_styles[style], modAmount::ToEuros(cents));
    m_isComplete = m_isComplete && error == LXW_NO_ERROR;
}

void cWorkbook::WriteBlank(qsizetype row, int column, eStyle style)
{
    (void)worksheet_write_blank(m_sheet, Row(row), Column(column), m_styles[style]);
}

void cWorkbook::MarkAsGroupMember(qsizetype row)
{
    lxw_row_col_options options{};
    options.level = 1;
    (void)worksheet_set_row_opt(m_sheet, Row(row), LXW_DEF_ROW_HEIGHT, nullptr, &options);
}

void cWorkbook::SetHead(qsizetype lastRow, int lastColumn)
{
    worksheet_freeze_panes(m_sheet, 1, 0);
    (void)worksheet_autofilter(m_sheet, 0, 0, Row(lastRow), Column(lastColumn));
    (void)worksheet_repeat_rows(m_sheet, 0, 0);
    worksheet_outline_settings(m_sheet, LXW_TRUE, LXW_FALSE, LXW_TRUE, LXW_FALSE); // the sum stands above its rows
}

void cWorkbook::SetPrinting(const QString& header, const QString& footer)
{
    constexpr std::uint8_t paperA4 = 9;
    worksheet_set_landscape(m_sheet);
    worksheet_set_paper(m_sheet, paperA4);
    worksheet_fit_to_pages(m_sheet, 1, 0);
    (void)worksheet_set_header(m_sheet, Bytes(header).constData());
    (void)worksheet_set_footer(m_sheet, Bytes(footer).constData());
}

std::optional<QByteArray> cWorkbook::Close()
{
    const lxw_error error = workbook_close(m_book);
    m_book = nullptr;
    QFile file(Path());
    if (error != LXW_NO_ERROR || !m_isComplete || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    return IsWhole(bytes) ? std::optional(bytes) : std::nullopt;
}
