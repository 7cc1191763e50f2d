#pragma once

#include "model/cImportEntry.h"
#include "views/look/cCategoryLooks.h"
#include "views/statement/cStagedOrder.h"
#include "views/statement/cStagedSource.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QItemSelection>
#include <QString>

#include <vector>

class cAmountFormat;

// The bank transactions that were read, one row each, optionally gathered in groups with number and sum. The records
// never move; sorting, grouping and filtering only rebuild the order in which they are shown.
class cStagedListModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum eColumn { State, Date, Counterparty, Purpose, Amount, Account, Category, Interval, Reason, ColumnCount };

    enum eRole {
        ToneRole = Qt::UserRole, // eMoneyTone
        RowIdRole,               // int: ID of the staged row; 0 for the head of a group
        BookedRole,              // bool
        GroupRole,               // bool: the row is the head of a group
        NameRole,                // text: name of a group, without its numbers
        DoubtRole,               // bool: the same transaction may be there twice
    };

    cStagedListModel(cStagedSource& source, const cAmountFormat& format, QObject* parent = nullptr);

    void SetRows(cImportEntryList rows);
    void SetLooks(const cCategoryLooks& looks) { m_looks = looks; } // before the rows
    void SetShown(const cStagedOrder::cShown& shown);
    [[nodiscard]] const cStagedOrder::cShown& Shown() const { return m_order.Shown(); }
    void SetFilter(const QString& text); // every word must be found
    void SetGrouping(modStagedGroup::eGrouping grouping);
    [[nodiscard]] modStagedGroup::eGrouping Grouping() const { return m_order.Grouping(); }
    void ForgetInfo(); // the source would answer differently now; every row stays where it is
    void Regroup();    // the same, and rows may belong to other groups

    [[nodiscard]] bool IsHead(const QModelIndex& index) const; // of a group
    // Of the group that a line or a head is in; empty without groups.
    [[nodiscard]] QString GroupName(const QModelIndex& index) const;
    [[nodiscard]] int IdAt(const QModelIndex& index) const; // 0 for the head of a group
    // The rows of a selection, those of a selected group among them; each once, in their order.
    [[nodiscard]] QList<int> IdsIn(const QItemSelection& selection) const;
    [[nodiscard]] QItemSelection SelectionOf(const QList<int>& ids) const;
    [[nodiscard]] QModelIndex IndexOf(int id) const;
    [[nodiscard]] QModelIndex HeadNamed(const QString& name) const;
    [[nodiscard]] QList<int> OpenIds() const; // of the rows shown
    [[nodiscard]] const cStagedOrder::cCounts& Counts() const { return m_order.Counts(); }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void Arrange();
    [[nodiscard]] std::vector<qint64> SortKeys(const std::vector<int>& among) const;
    [[nodiscard]] const cStagedOrder::cGroup& GroupOf(const QModelIndex& head) const;
    [[nodiscard]] int PositionOf(const QModelIndex& index) const; // -1 for the head of a group
    [[nodiscard]] QModelIndex IndexAt(int position) const;
    [[nodiscard]] const cStagedInfo& InfoOf(const cImportEntry& row) const;
    [[nodiscard]] QVariant RowData(const cImportEntry& row, int column, int role) const;
    [[nodiscard]] QVariant GroupData(const cStagedOrder::cGroup& group, int column, int role) const;
    [[nodiscard]] QString Text(const cImportEntry& row, int column) const;
    [[nodiscard]] QString Tip(const cImportEntry& row, int column) const;
    [[nodiscard]] QString AccountText(const cImportEntry& row) const;

    cStagedSource& m_source;
    const cAmountFormat& m_format;
    cStagedOrder m_order;
    cCategoryLooks m_looks;
    int m_sortColumn = Date;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    mutable QHash<int, cStagedInfo> m_info; // by row ID, as far as it was asked for
};
