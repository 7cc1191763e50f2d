#pragma once

#include "views/list/cEntryListModel.h"
#include "views/list/cGroupLayout.h"

#include <QTreeView>

#include <array>

class cCellEdit;
class cColumnFit;
class QPainter;

// The entry list on screen: columns that can be chosen, moved and remembered, a selection that survives a rebuild, and
// a text where there is nothing to show.
class cEntryTree final : public QTreeView
{
    Q_OBJECT

public:
    // `cells`: what is typed into cells with F2. Both outlive the list.
    cEntryTree(cEntryListModel& model, cCellEdit& cells, QWidget* parent = nullptr);

    [[nodiscard]] QString LayoutText() const;
    void SetLayoutText(const QString& text); // an unreadable text gives the default layout
    // The closed groups, as cGroupLayout; an empty text opens all.
    [[nodiscard]] QString GroupText() const { return m_groups.ToText(); }
    void SetGroupText(const QString& text);
    void ShowColumnMenu();                                        // below the header, for the keyboard too
    void SetEmptyText(const QString& title, const QString& hint); // shown while the list is empty
    void ScrollTo(QDate day);
    // Only these, and brings the first into sight; nothing when the list has none of them.
    void Select(const QList<cEntryListModel::cKey>& keys);
    void GoTo(const QModelIndex& row);             // selects it in the middle of what is in sight
    void Copy() const;                             // the selected lines with the shown columns, as a table
    [[nodiscard]] QList<int> ShownColumns() const; // of the model, in the order on screen
    [[nodiscard]] QList<cEntryListModel::cKey> SelectedKeys() const; // without the heads of groups

Q_SIGNALS:
    void TagClicked(const QString& tag); // on its label
    void SelectionKeysChanged(const QList<cEntryListModel::cKey>& keys);
    void CellWritten(); // what was typed in a cell is stored, and the list has to be read again

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void paintEvent(QPaintEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void SetDefaultLayout();
    void ShowColumns(); // as chosen; the balance only while there is one
    void ShowColumn(int column, bool isShown);
    void KeepSelection();
    void RestoreSelection();
    void OpenGroups(); // all but the closed ones
    void KeepGroup(const QModelIndex& group);
    void RestoreCurrent();
    [[nodiscard]] QModelIndex FirstUnselected(const QModelIndex& line) const;
    void ReportSelection();
    void OpenColumnMenu(const QPoint& globalPosition);

    cEntryListModel& m_model;
    cCellEdit& m_cells;
    cColumnFit* m_fit;
    QList<cEntryListModel::cKey> m_selected;
    cEntryListModel::cKey m_current;
    cEntryListModel::cKey m_next; // takes the place of the current line when that is gone
    cEntryListModel::cKey m_top;  // first line in sight before the list was rebuilt
    bool m_isBelowNothing = true; // no head of a group was out of sight above it
    cGroupLayout m_groups;
    QString m_emptyTitle;
    QString m_emptyHint;
    std::array<bool, cEntryListModel::ColumnCount> m_isShown{}; // as the user wants it
    bool m_isRebuilding = false;
    bool m_isCurrentInSight = false;
};
