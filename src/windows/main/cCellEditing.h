#pragma once

#include "views/list/cEntryListModel.h"

#include <QObject>

class cCellDelegate;
class cCellEdit;
class cEntryTree;

// Typing in the cells of the entry list: F2 opens the field of the current cell, Enter stores, Tab stores and goes on
// to the next cell, Escape leaves all as it was. What was refused stands in its field again.
class cCellEditing final : public QObject
{
    Q_OBJECT

public:
    // All outlive it; `tree` owns it.
    cCellEditing(cEntryTree& tree, cEntryListModel& model, cCellEdit& cells);

    // Opens the field of a cell, or of the first one in its line that can be typed.
    void Edit(const QModelIndex& cell);

Q_SIGNALS:
    void Written(); // the book has changed, and the list has to be read again

private:
    void Open(const QModelIndex& cell, const QString& text, bool isTyped);
    void Finish();
    // `next`: the line that was the next one in that direction before the list was built anew.
    void GoOn(const cEntryListModel::cKey& key, int column, int step, const cEntryListModel::cKey& next);
    [[nodiscard]] QModelIndex LineBeside(const QModelIndex& line, int step) const; // heads of groups are passed over
    [[nodiscard]] QList<int> Columns() const; // that are shown and can be typed, in the order on screen

    cEntryTree& m_tree;
    cEntryListModel& m_model;
    cCellEdit& m_cells;
    cCellDelegate* m_delegate;
};
