#pragma once

#include <QDialog>

class QLabel;
class QLayout;
class QListView;
class QPushButton;
class QToolButton;
class cPreviewView;
class cReceiptListModel;

// The receipts of one entry, or the papers of a bank account: their list, a preview, and what can be done with each.
class frmBelege final : public QDialog
{
    Q_OBJECT

public:
    explicit frmBelege(cReceiptListModel& receipts, QWidget* parent = nullptr);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] QWidget* BuildList();
    [[nodiscard]] QWidget* BuildPreview();
    [[nodiscard]] QLayout* BuildPreviewBar();
    [[nodiscard]] QLayout* BuildButtons();
    [[nodiscard]] QToolButton* MakeTool(const QString& text, const QString& name, const QKeySequence& key);
    void Connect();
    void ShowList(); // after it changed
    void ShowReceipt();
    void ShowButtons();
    void Paste();
    [[nodiscard]] int Row() const; // -1 for none

    cReceiptListModel& m_receipts;
    QListView* m_list;
    cPreviewView* m_preview;
    QToolButton* m_smaller = nullptr;
    QToolButton* m_larger = nullptr;
    QToolButton* m_whole = nullptr;
    QToolButton* m_back = nullptr;
    QToolButton* m_forth = nullptr;
    QLabel* m_page;
    QPushButton* m_again;
    QPushButton* m_add;
    QPushButton* m_paste;
    QPushButton* m_open;
    QPushButton* m_save;
    QPushButton* m_remove;
    QPushButton* m_close;
    int m_row = -1; // as it is shown
};
