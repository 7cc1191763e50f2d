#include "windows/statistics/cReportTree.h"

#include "base/cText.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReport.h"
#include "windows/widget/cRowDelegate.h"

#include <QAction>
#include <QHeaderView>

namespace {

// As high as the rows of the other lists.
class cTreeDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), cRowDelegate::RowHeight(option.fontMetrics)};
    }
};

} // namespace

cReportTree::cReportTree(cReportTreeModel& model, QWidget* parent) : QTreeView(parent), m_model(model)
{
    // Before the view itself hears of it.
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cReportTree::Keep);
    setModel(&m_model);
    setItemDelegate(new cTreeDelegate(this));
    setAccessibleName(cText::Tr("Zahlen des Berichts"));
    setUniformRowHeights(true);
    setIndentation(fontMetrics().height());
    setEditTriggers(NoEditTriggers);
    setHeaderHidden(true); // the report says what the amounts are
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    AddActions();
    connect(this, &QTreeView::clicked, this, &cReportTree::Request);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cReportTree::Restore);
    Open();
}

void cReportTree::AddActions()
{
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* show = new QAction(cText::Tr("&Einträge zeigen"), this);
    auto* edit = new QAction(cText::Tr("&Kategorie bearbeiten"), this);
    show->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    show->setShortcutContext(Qt::WidgetShortcut);
    show->setShortcutVisibleInContextMenu(true);
    addActions({show, edit});
    connect(show, &QAction::triggered, this, [this] { Request(currentIndex()); });
    connect(edit, &QAction::triggered, this, [this] {
        if (currentIndex().isValid()) {
            Q_EMIT EditRequested(m_model.NodeAt(currentIndex()));
        }
    });
}

void cReportTree::Request(const QModelIndex& index)
{
    if (index.isValid()) {
        Q_EMIT EntriesRequested(m_model.NodeAt(index));
    }
}

void cReportTree::Keep()
{
    m_kept = {m_model.Figures().Type, {}, std::nullopt};
    if (currentIndex().isValid()) {
        m_kept.Current = m_model.NodeAt(currentIndex());
    }
    for (QModelIndex index = m_model.index(0, 0); index.isValid(); index = indexBelow(index)) {
        if (isExpanded(index)) {
            m_kept.Expanded.append(m_model.NodeAt(index));
        }
    }
}

void cReportTree::Restore()
{
    Open();
    if (m_kept.Type != m_model.Figures().Type) {
        return;
    }
    for (const cReportNode& node : m_kept.Expanded) {
        expand(m_model.FindNode(node));
    }
    if (m_kept.Current) {
        setCurrentIndex(m_model.FindNode(*m_kept.Current));
    }
}

// The groups; of the limits, which are few, the categories too.
void cReportTree::Open()
{
    const bool isLimit = modReport::HasLimits(m_model.Figures().Type);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setSectionResizeMode(cReportTreeModel::Name, QHeaderView::Stretch);
    expandToDepth(isLimit ? 1 : 0);
    if (isLimit) {
        setColumnHidden(cReportTreeModel::Limit, true); // it stands in the report beside the tree
    }
    const int gap = fontMetrics().averageCharWidth();
    header()->resizeSection(cReportTreeModel::Amount, sizeHintForColumn(cReportTreeModel::Amount) + gap);
}
