#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;
class QModelIndex;
class QRubberBand;
class QTreeView;
class cEntryListModel;

// Lets files be dropped on an entry of a list. Files that are no receipts, or that fall beside an entry, go to whoever
// takes files in that window.
class cReceiptDrop final : public QObject
{
    Q_OBJECT

public:
    cReceiptDrop(QTreeView& tree, cEntryListModel& entries);

Q_SIGNALS:
    void ReceiptsDropped(int entryId, const QStringList& paths);
    void OthersDropped(const QStringList& paths);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int EntryUnder(const QDropEvent& event) const; // 0 where these files are no receipts
    void Frame(const QDropEvent& event);
    void Drop(const QDropEvent& event);

    QTreeView& m_tree;
    cEntryListModel& m_entries;
    QRubberBand* m_frame; // around the entry that would get the files
};
