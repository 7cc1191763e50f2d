#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class QDropEvent;
class QModelIndex;
class QRubberBand;
class QTreeView;

// Lines of a list that are dragged onto another group, while the list is grouped by category.
class cCategoryDrop final : public QObject
{
    Q_OBJECT

public:
    // The category of the group that a line is in; empty where nothing can be dropped.
    using fnCategory = std::function<QString(const QModelIndex& line)>;

    // `format`: of the lines on their way. The tree owns it.
    cCategoryDrop(QTreeView& tree, QString format, fnCategory categoryOf);

    // Starts dragging lines of this format out of the tree, and comes back when they are let go.
    static void Drag(QTreeView& tree, const QString& format, const QByteArray& lines);

Q_SIGNALS:
    void Dropped(const QByteArray& lines, const QString& category);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QString CategoryUnder(const QDropEvent& event) const;
    void Frame(const QDropEvent& event);
    void ScrollNear(int y); // while the mouse stays at an edge, because the other group may be out of sight
    void Stop();

    QTreeView& m_tree;
    QString m_format;
    fnCategory m_categoryOf;
    QRubberBand* m_frame;
    QTimer m_scrolling;
    int m_step = 0; // up or down
};
