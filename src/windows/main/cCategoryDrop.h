#pragma once

#include "views/list/cEntryListModel.h"

#include <QObject>
#include <QTimer>

class QDropEvent;
class QRubberBand;
class QTreeView;

// Lines of an entry list that are dragged onto another group, while the list is grouped by category.
class cCategoryDrop final : public QObject
{
    Q_OBJECT

public:
    // Both outlive it; the tree owns it.
    cCategoryDrop(QTreeView& tree, const cEntryListModel& entries);

Q_SIGNALS:
    void RowsDropped(const QList<cEntryListModel::cKey>& rows, const QString& category);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QString CategoryUnder(const QDropEvent& event) const; // empty where nothing can be dropped
    void Frame(const QDropEvent& event);
    void ScrollNear(int y); // while the mouse stays at an edge, because the other group may be out of sight
    void Stop();

    QTreeView& m_tree;
    const cEntryListModel& m_entries;
    QRubberBand* m_frame;
    QTimer m_scrolling;
    int m_step = 0; // up or down
};
