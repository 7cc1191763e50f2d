#pragma once

#include <QDate>
#include <QWidget>

class cReconcileListModel;
class QLabel;
class QPushButton;
class QTreeView;

// The differences between a bank account and the book, each with the button that cures it (Enter).
class cReconcilePanel final : public QWidget
{
    Q_OBJECT

public:
    // `model` outlives the panel.
    explicit cReconcilePanel(cReconcileListModel& model, QWidget* parent = nullptr);

Q_SIGNALS:
    void BookRequested(int rowId);
    void DeleteRequested(int entryId, QDate day);
    void EntryRequested(int entryId, QDate day);
    void Cured();

private:
    void Build();
    void Fill();
    void ShowButtons();
    void Cure();
    void OpenEntry();

    cReconcileListModel& m_model;
    QLabel* m_title;
    QTreeView* m_list;
    QPushButton* m_cure;
    QPushButton* m_open;
    QPushButton* m_confirm;
};
