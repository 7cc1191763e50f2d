#include "views/report/cReportTreeModel.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "core/cAmountFormat.h"
#include "views/report/modReport.h"

#include <algorithm>
#include <utility>

namespace {

std::size_t Number(int position)
{
    return static_cast<std::size_t>(position);
}

} // namespace

cReportTreeModel::cReportTreeModel(const cAmountFormat& format, QObject* parent)
    : QAbstractItemModel(parent),
      m_format(format)
{
}

void cReportTreeModel::SetFigures(const cReportFigures& figures)
{
    beginResetModel();
    m_figures = figures;
    m_lines.clear();
    m_top.clear();
    if (!modReport::HasLimits(figures.Type)) {
        AddSection(m_figures.Income);
    }
    AddSection(m_figures.Expense);
    endResetModel();
}

void cReportTreeModel::AddSection(const cReportSection& section)
{
    const eReportKind kind = section.Kind;
    const int top = AddLine({{kind}, modReport::ShownKind(kind), section.Amount});
    for (const cReportGroup& group : section.Groups) {
        const int parent = AddLine({{kind, group.Name}, group.Label, group.Amount, top});
        for (const cReportCategory& category : group.Categories) {
            // The group stands above it already.
            const QString label = category.Name.isEmpty() ? cText::Tr("Sonstiges") : category.Name;
            AddLine({{kind, group.Name, category.Name}, label, category.Amount, parent});
        }
    }
}

int cReportTreeModel::AddLine(cLine line)
{
    const int position = static_cast<int>(m_lines.size());
    std::vector<int>& siblings = line.Parent < 0 ? m_top : m_lines[Number(line.Parent)].Children;
    line.Row = static_cast<int>(siblings.size());
    siblings.push_back(position);
    m_lines.push_back(std::move(line));
    return position;
}

cReportNode cReportTreeModel::NodeAt(const QModelIndex& index) const
{
    return At(index).Node;
}

QModelIndex cReportTreeModel::FindNode(const cReportNode& node) const
{
    const auto line =
        std::find_if(m_lines.begin(), m_lines.end(), [&node](const cLine& other) { return other.Node == node; });
    return line == m_lines.end()
        ? QModelIndex()
        : createIndex(line->Row, 0, static_cast<quintptr>(std::distance(m_lines.begin(), line)));
}

const cReportTreeModel::cLine& cReportTreeModel::At(const QModelIndex& index) const
{
    return m_lines[index.internalId()];
}

const std::vector<int>& cReportTreeModel::Children(const QModelIndex& parent) const
{
    return parent.isValid() ? At(parent).Children : m_top;
}

QModelIndex cReportTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, static_cast<quintptr>(Children(parent)[Number(row)]));
}

QModelIndex cReportTreeModel::parent(const QModelIndex& child) const
{
    const int above = child.isValid() ? At(child).Parent : -1;
    return above < 0 ? QModelIndex() : createIndex(m_lines[Number(above)].Row, 0, static_cast<quintptr>(above));
}

int cReportTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(Children(parent).size());
}

int cReportTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return modReport::HasLimits(m_figures.Type) ? Limit + 1 : Amount + 1;
}

QString cReportTreeModel::Text(const cLine& line, int column) const
{
    return column == Name ? line.Label : m_format.Cents(column == Amount ? line.Amount.Cents : line.Amount.Limit);
}

// With the name, which may be longer than its place.
QString cReportTreeModel::Explanation(const cLine& line) const
{
    const QString amount = modReport::HasLimits(m_figures.Type)
        ? cText::Tr("{0} von {1}", {Text(line, Amount), Text(line, Limit)})
        : Text(line, Amount);
    return line.Label + u": " + amount + u'\n' + modCount::Entries(line.Amount.Entries);
}

QVariant cReportTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const cLine& line = At(index);
    const bool isMoney = index.column() != Name;
    switch (role) {
    case Qt::DisplayRole: return Text(line, index.column());
    case Qt::ToolTipRole: return Explanation(line);
    case Qt::TextAlignmentRole: return isMoney ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default: return {};
    }
}

QVariant cReportTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return section == Name ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                               : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Name: return cText::Tr("Kategorie");
    case Amount: return modReport::AmountTitle(m_figures.Type);
    default: return cText::Tr("Limit");
    }
}
