#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class cPageText;

// One column of a printed list. Places and widths are pixels of the device.
struct cPrintColumn
{
    QString Title;
    bool IsAmount = false; // sums stand under it
    bool IsMoney = false;
    bool IsFixed = false; // never narrower than its texts
    qreal Left = 0;
    qreal Width = 0;

    // Widths that are better and better: no word is broken, most texts fill one line, all texts do.
    qreal Word = 0;
    qreal Typical = 0;
    qreal Natural = 0;
};

// Columns side by side, as wide as their texts want and the page allows.
class cPrintColumns
{
public:
    void Add(const cPrintColumn& column) { m_columns.push_back(column); }
    [[nodiscard]] const std::vector<cPrintColumn>& All() const { return m_columns; }

    // Shares out the width between `left` and `right`. `rows` holds the cells of every row. False when words have to be
    // broken for it.
    [[nodiscard]] bool Fit(const std::vector<const QStringList*>& rows, const cPageText& text, qreal left, qreal right);

private:
    void Measure(std::size_t index, const std::vector<const QStringList*>& rows, const cPageText& text);
    [[nodiscard]] bool Share(qreal room);
    // Widens the columns to one of their widths, or as far as the room goes; then it is false.
    [[nodiscard]] bool Widen(qreal cPrintColumn::*width, qreal& room);
    void Place(qreal left, qreal right, qreal gapWidth);

    std::vector<cPrintColumn> m_columns;
};
