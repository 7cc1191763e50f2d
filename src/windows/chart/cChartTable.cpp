#include "windows/chart/cChartTable.h"

#include "base/cText.h"
#include "windows/look/modTone.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace {

constexpr int rowsMeasured = 100; // a column is as wide as these need: ten years of days would take long

class cFigureDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->font.setBold(index.data(cChartTableModel::SumRole).toBool());
        if (index.data(cChartTableModel::NegativeRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Expense(option->palette));
        }
    }
};

} // namespace

cChartTable::cChartTable(QWidget* parent) : QTableView(parent)
{
    setModel(&m_model);
    setItemDelegate(new cFigureDelegate(this));
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    setAccessibleName(cText::Tr("Zahlen des Diagramms"));
    connect(this, &QTableView::activated, this, [this](const QModelIndex& index) {
        if (const auto part = m_model.PartAt(index)) {
            Q_EMIT PartClicked(part->first, part->second);
        }
    });
}

void cChartTable::SetData(const cChartData& chart)
{
    m_model.SetData(chart);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
    FitColumns();
}

// As wide as what they hold; names not wider than a line of text.
void cChartTable::FitColumns()
{
    const int most = fontMetrics().averageCharWidth() * 45;
    const int gap = fontMetrics().averageCharWidth() * 2;
    resizeColumnsToContents();
    for (int column = 0; column < m_model.columnCount(); ++column) {
        setColumnWidth(column, qMin(columnWidth(column) + gap, most));
    }
}
