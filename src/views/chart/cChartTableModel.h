#pragma once

#include "views/chart/modChartTable.h"

#include <QAbstractTableModel>

// The figures of a chart for a list.
class cChartTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eRole { SumRole = Qt::UserRole, NegativeRole };

    using QAbstractTableModel::QAbstractTableModel;

    void SetData(const cChartData& data);

    // The part that a cell shows: series and label; empty for names, shares and sums.
    [[nodiscard]] std::optional<std::pair<int, int>> PartAt(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString Text(const QModelIndex& index) const;

    cChartData m_data;
    cChartFigures m_figures;
};
