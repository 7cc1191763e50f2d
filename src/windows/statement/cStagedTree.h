#pragma once

#include "windows/widget/cTypedCells.h"

#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTreeView>

class cCategoryBox;
class cColumnFit;
class cStagedListModel;
class QPainter;

// The list of bank transactions: keys, columns, groups and the text of its empty state.
class cStagedTree final : public cTypedCells<QTreeView>
{
    Q_OBJECT

public:
    inline static const QString DragFormat = QStringLiteral("application/x-kontorelle-umsaetze"); // of its rows

    explicit cStagedTree(cStagedListModel& model, QWidget* parent = nullptr);

    [[nodiscard]] QList<int> SelectedIds() const; // with all rows of the groups that are selected
    void SelectIds(const QList<int>& ids);        // and takes the focus, so that Enter books them
    // Selects one row and opens the field of its category. Enter there takes the category that it holds and tells so;
    // without one the field stays open.
    void OpenCategory(int id);
    [[nodiscard]] bool IsFieldOpen() const { return m_field != nullptr && state() == EditingState; } // that very one
    [[nodiscard]] bool IsFieldEmpty() const; // the open one, of a category
    // What stands in an open field is taken, as by leaving it. False when it names no category yet: that is asked
    // first. Until then OpenCategory's stays open for who is booking, and a yes books as Enter does.
    bool LeaveField(bool isBooking);
    // Closes the field of a cell and takes nothing from it. True when it was OpenCategory's.
    bool DropField(const QModelIndex& cell);

    using cTypedCells::edit;

    void SetEmptyText(const QString& title, const QString& hint);
    [[nodiscard]] QString LayoutText() const;
    void SetLayoutText(const QString& text); // the default columns for a text that does not fit

    void ExpandGroups();
    void CollapseGroups();

Q_SIGNALS:
    void BookRequested();
    void CategoryEntered(int id); // in the field that OpenCategory had opened
    void FieldChanged();          // OpenCategory has opened one, or it was closed
    void DeleteRequested();
    void MenuRequested(const QPoint& globalPosition);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    bool edit(const QModelIndex& cell, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] cCategoryBox* CategoryField() const; // the open one; null without
    // A line as it is found again after the model was rebuilt: a row, or the head of a group.
    struct cLine
    {
        int Id = 0;
        QString Head;
    };

    // What is kept while the model is rebuilt.
    struct cKept
    {
        QList<int> Ids; // selected rows
        QStringList Heads;
        cLine Current;
        cLine Next; // takes over when no selected line is left
        int Column = 0;

        [[nodiscard]] bool HasSelection() const { return !Ids.isEmpty() || !Heads.isEmpty(); }
    };

    void ConnectGroups();
    [[nodiscard]] cLine LineAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex IndexOf(const cLine& line) const;
    [[nodiscard]] QModelIndex Neighbour(const QModelIndex& index) const;
    void KeepSelection();
    void RestoreSelection();
    void OpenGroups();
    void OpenMenuAtCurrent();
    void GoToCategory(); // of the current row, unless its present cell can be edited

    cStagedListModel& m_model;
    cColumnFit* m_fit;
    QString m_emptyTitle;
    QString m_emptyHint;
    QSet<QString> m_closed; // groups that the user has closed
    cKept m_kept;
    bool m_isLost = false;     // what was selected went, as by taking an import back: Enter needs another row
    QPointer<QWidget> m_field; // that OpenCategory has opened
    int m_fieldId = 0;         // its row, which may leave the list with the category that it takes
};
