#include "views/template/cTemplateTreeModel.h"

#include "views/look/cCategoryLooks.h"

namespace {

// The internal id of a line is 0 for a branch and the branch's row + 1 for a line below it.
constexpr quintptr noParent = 0;

} // namespace

cTemplateTreeModel::cTemplateTreeModel(const QStringList& headers, const QList<int>& numeric, QObject* parent)
    : QAbstractItemModel(parent),
      m_headers(headers),
      m_numeric(numeric)
{
}

void cTemplateTreeModel::SetBranches(std::vector<cTemplateBranch> branches)
{
    beginResetModel();
    m_branches = std::move(branches);
    endResetModel();
}

const cTemplateNode* cTemplateTreeModel::NodeAt(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return nullptr;
    }
    const auto row = static_cast<size_t>(index.row());
    return index.internalId() == noParent ? &m_branches[row].Node : &m_branches[index.internalId() - 1].Children[row];
}

template <typename tMatch>
QModelIndex cTemplateTreeModel::Find(tMatch isMatch) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const cTemplateBranch& branch = m_branches[static_cast<size_t>(row)];
        if (isMatch(branch.Node)) {
            return index(row, 0);
        }
        for (size_t child = 0; child < branch.Children.size(); ++child) {
            if (isMatch(branch.Children[child])) {
                return index(static_cast<int>(child), 0, index(row, 0));
            }
        }
    }
    return {};
}

QModelIndex cTemplateTreeModel::IndexOf(const cTemplateNode& node) const
{
    return Find([&](const cTemplateNode& other) { return other.IsSame(node); });
}

QModelIndex cTemplateTreeModel::IndexOf(const QString& path) const
{
    const auto isAt = [&path](Qt::CaseSensitivity sensitivity) {
        return [&path, sensitivity](const cTemplateNode& node) {
            return node.Kind != eTemplateNode::Group && node.Path.compare(path, sensitivity) == 0;
        };
    };
    const QModelIndex exact = Find(isAt(Qt::CaseSensitive));
    return exact.isValid() ? exact : Find(isAt(Qt::CaseInsensitive));
}

QModelIndex cTemplateTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : noParent);
}

QModelIndex cTemplateTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == noParent) {
        return {};
    }
    return createIndex(static_cast<int>(child.internalId() - 1), 0, noParent);
}

int cTemplateTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(m_branches.size());
    }
    const bool isBranch = parent.internalId() == noParent && parent.column() == 0;
    return isBranch ? static_cast<int>(m_branches[static_cast<size_t>(parent.row())].Children.size()) : 0;
}

int cTemplateTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return static_cast<int>(m_headers.size());
}

QVariant cTemplateTreeModel::data(const QModelIndex& index, int role) const
{
    const cTemplateNode* node = NodeAt(index);
    if (node == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return node->Cells.value(index.column());
    case Qt::TextAlignmentRole:
        return m_numeric.contains(index.column()) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case QuietRole: return node->IsQuiet;
    case cCategoryLooks::Role: return index.column() == 0 ? node->Look : QVariant();
    case BranchRole: return index.internalId() == noParent;
    default: return {};
    }
}

QVariant cTemplateTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return m_numeric.contains(section) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                           : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(m_headers.value(section)) : QVariant();
}
