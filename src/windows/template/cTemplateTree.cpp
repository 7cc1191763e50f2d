#include "windows/template/cTemplateTree.h"

#include "views/list/cListLayout.h"
#include "windows/look/modLook.h"
#include "windows/look/modTone.h"
#include "windows/widget/cColumnFit.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int textWidth = 17; // of a column, in average characters
constexpr int amountWidth = 14;
constexpr int leastName = 21;
constexpr int leastText = 13; // of a column that the panel beside the list repeats
constexpr int nameWidth = 30; // at least, where there is room; the names take what is left

std::vector<cColumnFit::cColumn> ColumnsOf(const cTemplateTreeModel& model)
{
    std::vector<cColumnFit::cColumn> columns{{nameWidth, cColumnFit::eKind::Text, leastName}};
    for (int column = 1; column < model.columnCount(); ++column) {
        const int alignment = model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
        const bool isAmount = (alignment & Qt::AlignRight) != 0;
        columns.push_back({isAmount ? amountWidth : textWidth,
                           isAmount ? cColumnFit::eKind::Amount : cColumnFit::eKind::Text, leastText,
                           isAmount ? 0 : column});
    }
    return columns;
}

class cTemplateDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), option.fontMetrics.height() + 8};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        modLook::Decorate(*option, index);
        option->font.setBold(index.column() == 0 && index.data(cTemplateTreeModel::BranchRole).toBool());
        if (index.data(cTemplateTreeModel::QuietRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
        }
    }
};

} // namespace

cTemplateTree::cTemplateTree(cTemplateTreeModel& model, QWidget* parent) : QTreeView(parent), m_model(model)
{
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setModel(&m_model);
    setItemDelegate(new cTemplateDelegate(this));
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setIndentation(fontMetrics().height()); // names have little room on a small screen
    header()->setSectionsMovable(false);
    m_fit = new cColumnFit(*this, ColumnsOf(m_model), 0);
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cTemplateTree::Keep);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cTemplateTree::Restore);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!m_isRebuilding) {
            Q_EMIT Chosen();
        }
    });
    SetLayout({});
}

const cTemplateNode* cTemplateTree::Current() const
{
    return m_model.NodeAt(currentIndex());
}

void cTemplateTree::SelectIndex(const QModelIndex& index)
{
    setCurrentIndex(index.siblingAtColumn(0)); // opens the branch as well
    scrollTo(index);
}

bool cTemplateTree::Select(const QString& path)
{
    const QModelIndex index = m_model.IndexOf(path);
    if (index.isValid()) {
        SelectIndex(index);
    }
    return index.isValid();
}

bool cTemplateTree::Select(const cTemplateNode& node)
{
    const QModelIndex index = m_model.IndexOf(node);
    if (index.isValid()) {
        SelectIndex(index);
    }
    return index.isValid();
}

void cTemplateTree::SelectFirst()
{
    if (m_model.rowCount() > 0) {
        setCurrentIndex(m_model.index(0, 0));
    }
}

void cTemplateTree::Keep()
{
    const cTemplateNode* node = Current();
    m_current = node == nullptr ? std::nullopt : std::optional(*node);
    m_place = {currentIndex().row(), currentIndex().parent().row()};
    m_open = OpenBranches();
    m_isRebuilding = true;
}

// A line that is gone hands the selection on to the one that took its place.
void cTemplateTree::Restore()
{
    const int scrolled = verticalScrollBar()->value();
    OpenThese(m_open);
    if (m_current && !Select(*m_current)) {
        const QModelIndex branch = m_model.index(m_place.y(), 0);
        const int last = m_model.rowCount(branch) - 1;
        const QModelIndex next = m_model.index(qMin(m_place.x(), last), 0, branch);
        SelectIndex(next.isValid() ? next : branch.isValid() ? branch : m_model.index(0, 0));
    }
    verticalScrollBar()->setValue(scrolled);
    scrollTo(currentIndex());
    m_isRebuilding = false;
}

QStringList cTemplateTree::OpenBranches() const
{
    QStringList names;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, 0);
        if (isExpanded(index)) {
            names.append(m_model.NodeAt(index)->Path);
        }
    }
    return names;
}

void cTemplateTree::OpenThese(const QStringList& names)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, 0);
        setExpanded(index, names.contains(m_model.NodeAt(index)->Path));
    }
}

cTreeLayout cTemplateTree::Layout() const
{
    return {m_fit->Layout().ToText(), OpenBranches()};
}

void cTemplateTree::SetLayout(const cTreeLayout& layout)
{
    std::optional<cListLayout> columns = cListLayout::FromText(layout.Columns, m_model.columnCount());
    if (columns && columns->Letter == 0) {
        columns->Columns.front().Width = 0; // older layouts hold what the names just happened to get
    }
    m_fit->SetLayout(columns);
    if (columns) {
        OpenThese(layout.Open);
    }
}
