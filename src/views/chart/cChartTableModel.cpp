#include "views/chart/cChartTableModel.h"

void cChartTableModel::SetData(const cChartData& data)
{
    beginResetModel();
    m_data = data;
    m_figures = modChartTable::Figures(data);
    endResetModel();
}

std::optional<std::pair<int, int>> cChartTableModel::PartAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.column() == 0 || m_figures.Rows[index.row()].IsSum
        || m_figures.Columns[index.column() - 1].IsShare) {
        return std::nullopt;
    }
    if (m_data.Kind == eChart::Pie || m_data.Kind == eChart::Flow) {
        return std::pair(m_figures.Rows[index.row()].Series, (index.column() - 1) / 2);
    }
    return std::pair(index.column() - 1, index.row());
}

int cChartTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_figures.Rows.size());
}

int cChartTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_figures.Columns.size()) + 1;
}

QString cChartTableModel::Text(const QModelIndex& index) const
{
    const cChartFigures::cRow& row = m_figures.Rows[index.row()];
    if (index.column() == 0) {
        return row.Name;
    }
    const int column = index.column() - 1;
    return modChartTable::Text(m_data, m_figures.Columns[column], row.Values.value(column));
}

QVariant cChartTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const cChartFigures::cRow& row = m_figures.Rows[index.row()];
    switch (role) {
    case Qt::DisplayRole: return Text(index);
    case Qt::TextAlignmentRole: return index.column() == 0 ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case SumRole: return row.IsSum;
    case NegativeRole: return index.column() > 0 && row.Values.value(index.column() - 1).value_or(0) < 0;
    default: return {};
    }
}

QVariant cChartTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole: return section == 0 ? m_figures.NameTitle : m_figures.Columns.value(section - 1).Title;
    case Qt::TextAlignmentRole: return QVariant((section == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    default: return {};
    }
}
