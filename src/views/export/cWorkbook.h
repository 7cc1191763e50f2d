#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <memory>

class cAmountFormat;

// One sheet of a table program's file. Cells are counted from 0. What writes it is a module beside the program, loaded
// with the first such file: most starts never come to one, and its library brings others with it.
class cWorkbook
{
public:
    enum eStyle { Plain, Date, Money, Head, GroupName, GroupMoney, SumName, SumMoney, StyleCount };

    // Amounts have the currency sign where the program's own texts have it. Null when the module is not there.
    [[nodiscard]] static std::unique_ptr<cWorkbook> Make(const QString& sheet, const cAmountFormat& format);
    [[nodiscard]] static QString Missing(); // what is said then

    cWorkbook() = default;
    cWorkbook(const cWorkbook&) = delete;
    cWorkbook& operator=(const cWorkbook&) = delete;
    virtual ~cWorkbook() = default;

    // The most rows that a sheet holds.
    static constexpr qsizetype MaxRows = 1'048'576;

    virtual void SetTitle(const QString& title, const QString& comment) = 0; // of the file's properties
    virtual void SetColumnWidth(int column, int characters) = 0;
    // Text is text: a "=" in front makes no formula of it. What is longer than a cell holds is cut.
    virtual void WriteText(qsizetype row, int column, const QString& text, eStyle style) = 0;
    void WriteDate(qsizetype row, int column, QDate day);
    void WriteMoney(qsizetype row, int column, qint64 cents, eStyle style);
    virtual void WriteNumber(qsizetype row, int column, double number, eStyle style) = 0;
    // `cents` is the result for programs that do not calculate.
    void WriteFormula(qsizetype row, int column, const QString& formula, qint64 cents, eStyle style);
    virtual void WriteBlank(qsizetype row, int column, eStyle style) = 0;
    virtual void MarkAsGroupMember(qsizetype row) = 0; // folds together with the row above its group

    // The first row stays in sight and on every printed page; the rows down to `lastRow` can be filtered.
    virtual void SetHead(qsizetype lastRow, int lastColumn) = 0;
    virtual void SetPrinting(const QString& header, const QString& footer) = 0;

    // The whole file; no bytes when it could not be written. To be called once, at the end.
    [[nodiscard]] QByteArray Close();

private:
    virtual void PutDay(qsizetype row, int column, QDate day) = 0;
    virtual void PutFormula(qsizetype row, int column, const QString& formula, double result, eStyle style) = 0;
    [[nodiscard]] virtual QByteArray Finish() = 0; // as Close, but may lack its end
};
