#pragma once

#include "views/report/cReportFigures.h"

#include <QAbstractItemModel>

#include <vector>

class cAmountFormat;

// The tree beside a report: income and expense, below each its groups, below these their categories. The limit report
// has expenses only, and a column for the limits.
class cReportTreeModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum eColumn { Name, Amount, Limit };

    explicit cReportTreeModel(const cAmountFormat& format, QObject* parent = nullptr);

    void SetFigures(const cReportFigures& figures);
    [[nodiscard]] const cReportFigures& Figures() const { return m_figures; }

    // The node of a line, which must be a valid one.
    [[nodiscard]] cReportNode NodeAt(const QModelIndex& index) const;
    // The line of a node, in column 0; invalid when the report has none.
    [[nodiscard]] QModelIndex FindNode(const cReportNode& node) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    // A line of the tree; its position in m_lines is the internal id of its index.
    struct cLine
    {
        cReportNode Node;
        QString Label;
        cReportAmount Amount;
        int Parent = -1;
        int Row = 0;
        std::vector<int> Children{};
    };
    void AddSection(const cReportSection& section);
    int AddLine(cLine line);
    [[nodiscard]] const cLine& At(const QModelIndex& index) const;
    [[nodiscard]] const std::vector<int>& Children(const QModelIndex& parent) const;
    [[nodiscard]] QString Text(const cLine& line, int column) const;
    [[nodiscard]] QString Explanation(const cLine& line) const;

    const cAmountFormat& m_format;
    cReportFigures m_figures;
    std::vector<cLine> m_lines;
    std::vector<int> m_top;
};
