#pragma once

#include <QDialog>

class cBankListModel;
class QLabel;
class QLayout;
class QPushButton;
class QTreeView;

// The bank logins of the book with their accounts.
class frmBankzugaenge final : public QDialog
{
    Q_OBJECT

public:
    // `banks` outlives the window.
    explicit frmBankzugaenge(cBankListModel& banks, QWidget* parent = nullptr);

Q_SIGNALS:
    void AddRequested(); // the list is loaded again afterwards
    void ChangeRequested(int row);

private:
    void BuildList();
    [[nodiscard]] QLayout* BuildButtons();
    void ShowButtons();
    [[nodiscard]] int Row() const; // -1: none is chosen

    cBankListModel& m_banks;
    QLabel* m_empty;
    QTreeView* m_tree;
    QPushButton* m_add;
    QPushButton* m_change;
    QPushButton* m_remove;
};
