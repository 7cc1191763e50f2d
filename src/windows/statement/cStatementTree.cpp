#include "windows/statement/cStatementTree.h"

#include "base/cText.h"
#include "views/statement/cStatementListModel.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"
#include "windows/widget/modTone.h"

#include <QHeaderView>

#include <array>

namespace {

// Widths in average characters of the font; the purpose takes the rest.
constexpr std::array<int, cStatementListModel::ColumnCount> widths{13, 28, 20, 14, 14, 9, 22};

class cStatementDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        cRowDelegate::initStyleOption(option, index);
        const int column = index.column();
        if (column == cStatementListModel::Amount || column == cStatementListModel::Balance) {
            SetTone(*option, index.data(cStatementListModel::ToneRole).toInt());
        } else if (column == cStatementListModel::State && index.data(cStatementListModel::BookedRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
        }
    }
};

} // namespace

cStatementTree::cStatementTree(cStatementListModel& statement, QWidget* parent)
    : QTreeView(parent),
      m_statement(statement)
{
    setModel(&statement);
    setItemDelegate(new cStatementDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setAccessibleName(cText::Tr("Umsätze des Kontoauszugs"));
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(cStatementListModel::Purpose, QHeaderView::Stretch);
    for (int column = 0; column < cStatementListModel::ColumnCount; ++column) {
        const int width = widths.at(static_cast<std::size_t>(column)) * fontMetrics().averageCharWidth();
        header()->resizeSection(column, qMax(width, header()->sectionSizeHint(column)));
    }
}

void cStatementTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_statement.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_statement.EmptyTitle(), m_statement.EmptyHint());
    }
}
