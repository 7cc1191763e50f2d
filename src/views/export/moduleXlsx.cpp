#include "views/export/cWorkbook.h"

#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <vector>

namespace {

constexpr qsizetype longestText = 32767; // of a cell

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

class cXlsxWorkbook final : public cWorkbook
{
public:
    cXlsxWorkbook(const QString& sheet, const QString& moneyPattern);
    ~cXlsxWorkbook() override;

    void SetTitle(const QString& title, const QString& comment) override;
    void SetColumnWidth(int column, int characters) override;
    void WriteText(qsizetype row, int column, const QString& text, eStyle style) override;
    void WriteNumber(qsizetype row, int column, double number, eStyle style) override;
    void WriteBlank(qsizetype row, int column, eStyle style) override;
    void MarkAsGroupMember(qsizetype row) override;
    void SetHead(qsizetype lastRow, int lastColumn) override;
    void SetPrinting(const QString& header, const QString& footer) override;

private:
    void PutDay(qsizetype row, int column, QDate day) override;
    void PutFormula(qsizetype row, int column, const QString& formula, double result, eStyle style) override;
    [[nodiscard]] QByteArray Finish() override;
    void MakeStyles(const QString& moneyPattern);
    void Note(lxw_error error) { m_isComplete = m_isComplete && error == LXW_NO_ERROR; }
    [[nodiscard]] QString Path() const { return m_folder.filePath(QStringLiteral("export.xlsx")); }

    QTemporaryDir m_folder; // the library writes to a file only
    lxw_workbook* m_book = nullptr;
    lxw_worksheet* m_sheet = nullptr;
    std::vector<lxw_format*> m_styles; // owned by the book
    bool m_isComplete = true;
};

cXlsxWorkbook::cXlsxWorkbook(const QString& sheet, const QString& moneyPattern)
{
    QByteArray folder = QFile::encodeName(m_folder.path());
    lxw_workbook_options options{};
    options.tmpdir = folder.data(); // the book keeps a copy
    m_book = workbook_new_opt(QFile::encodeName(Path()).constData(), &options);
    m_sheet = workbook_add_worksheet(m_book, Bytes(sheet).constData());
    MakeStyles(moneyPattern);
}

cXlsxWorkbook::~cXlsxWorkbook()
{
    if (m_book != nullptr) {
        lxw_workbook_free(m_book); // given up before the end
    }
}

void cXlsxWorkbook::MakeStyles(const QString& moneyPattern)
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

void cXlsxWorkbook::SetTitle(const QString& title, const QString& comment)
{
    QByteArray titleBytes = Bytes(title);
    QByteArray commentBytes = Bytes(comment);
    lxw_doc_properties properties{};
    properties.title = titleBytes.data(); // copied by the library
    properties.comments = commentBytes.data();
    (void)workbook_set_properties(m_book, &properties);
}

void cXlsxWorkbook::SetColumnWidth(int column, int characters)
{
    (void)worksheet_set_column(m_sheet, Column(column), Column(column), characters, nullptr);
}

void cXlsxWorkbook::WriteText(qsizetype row, int column, const QString& text, eStyle style)
{
    const QByteArray bytes = Bytes(text.left(longestText));
    Note(worksheet_write_string(m_sheet, Row(row), Column(column), bytes.constData(), m_styles[style]));
}

void cXlsxWorkbook::PutDay(qsizetype row, int column, QDate day)
{
    lxw_datetime moment{};
    moment.year = day.year();
    moment.month = day.month();
    moment.day = day.day();
    Note(worksheet_write_datetime(m_sheet, Row(row), Column(column), &moment, m_styles[Date]));
}

void cXlsxWorkbook::WriteNumber(qsizetype row, int column, double number, eStyle style)
{
    Note(worksheet_write_number(m_sheet, Row(row), Column(column), number, m_styles[style]));
}

void cXlsxWorkbook::PutFormula(qsizetype row, int column, const QString& formula, double result, eStyle style)
{
    Note(worksheet_write_formula_num(m_sheet, Row(row), Column(column), formula.toUtf8().constData(), m_styles[style],
                                     result));
}

void cXlsxWorkbook::WriteBlank(qsizetype row, int column, eStyle style)
{
    (void)worksheet_write_blank(m_sheet, Row(row), Column(column), m_styles[style]);
}

void cXlsxWorkbook::MarkAsGroupMember(qsizetype row)
{
    lxw_row_col_options options{};
    options.level = 1;
    (void)worksheet_set_row_opt(m_sheet, Row(row), LXW_DEF_ROW_HEIGHT, nullptr, &options);
}

void cXlsxWorkbook::SetHead(qsizetype lastRow, int lastColumn)
{
    worksheet_freeze_panes(m_sheet, 1, 0);
    (void)worksheet_autofilter(m_sheet, 0, 0, Row(lastRow), Column(lastColumn));
    (void)worksheet_repeat_rows(m_sheet, 0, 0);
    worksheet_outline_settings(m_sheet, LXW_TRUE, LXW_FALSE, LXW_TRUE, LXW_FALSE); // the sum stands above its rows
}

void cXlsxWorkbook::SetPrinting(const QString& header, const QString& footer)
{
    constexpr std::uint8_t paperA4 = 9;
    worksheet_set_landscape(m_sheet);
    worksheet_set_paper(m_sheet, paperA4);
    worksheet_fit_to_pages(m_sheet, 1, 0);
    (void)worksheet_set_header(m_sheet, Bytes(header).constData());
    (void)worksheet_set_footer(m_sheet, Bytes(footer).constData());
}

QByteArray cXlsxWorkbook::Finish()
{
    const lxw_error error = workbook_close(m_book);
    m_book = nullptr;
    QFile file(Path());
    return error == LXW_NO_ERROR && m_isComplete && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// What cWorkbook looks for in this module; whoever calls it owns the workbook.
extern "C" Q_DECL_EXPORT cWorkbook* MakeWorkbook(const QString& sheet, const QString& moneyPattern);

cWorkbook* MakeWorkbook(const QString& sheet, const QString& moneyPattern)
{
    return new cXlsxWorkbook(sheet, moneyPattern);
}
