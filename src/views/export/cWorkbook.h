#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QTemporaryDir>

#include <optional>
#include <vector>

class cAmountFormat;

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

// One sheet of a table program's file. Cells are counted from 0.
class cWorkbook
{
public:
    enum eStyle { Plain, Date, Money, Head, GroupName, GroupMoney, SumName, SumMoney, StyleCount };

    // `moneyPattern` is the number format of amounts, in the English notation that the file has.
    cWorkbook(const QString& sheet, const QString& moneyPattern);
    ~cWorkbook();
    cWorkbook(const cWorkbook&) = delete;
    cWorkbook& operator=(const cWorkbook&) = delete;

    // The number format of amounts with the currency sign where the program's own texts have it.
    [[nodiscard]] static QString MoneyPattern(const cAmountFormat& format);

    // The most rows that a sheet holds.
    static constexpr qsizetype MaxRows = 1'048'576;

    void SetTitle(const QString& title, const QString& comment); // of the file's properties
    void SetColumnWidth(int column, int characters);
    // Text is text: a "=" in front makes no formula of it. What is longer than a cell holds is cut.
    void WriteText(qsizetype row, int column, const QString& text, eStyle style);
    void WriteDate(qsizetype row, int column, QDate day);
    void WriteMoney(qsizetype row, int column, qint64 cents, eStyle style);
    void WriteCount(qsizetype row, int column, int count, eStyle style);
    // `cents` is the result for programs that do not calculate.
    void WriteFormula(qsizetype row, int column, const QString& formula, qint64 cents, eStyle style);
    void WriteBlank(qsizetype row, int column, eStyle style);
    void MarkAsGroupMember(qsizetype row); // folds together with the row above its group

    // The first row stays in sight and on every printed page; the rows down to `lastRow` can be filtered.
    void SetHead(qsizetype lastRow, int lastColumn);
    void SetPrinting(const QString& header, const QString& footer);

    // The whole file; empty when it could not be written. To be called once, at the end.
    [[nodiscard]] std::optional<QByteArray> Close();

private:
    void MakeStyles(const QString& moneyPattern);
    [[nodiscard]] QString Path() const { return m_folder.filePath(QStringLiteral("export.xlsx")); }

    QTemporaryDir m_folder; // the library writes to a file only
    lxw_workbook* m_book = nullptr;
    lxw_worksheet* m_sheet = nullptr;
    std::vector<lxw_format*> m_styles; // owned by the book
    bool m_isComplete = true;
};
