#pragma once

#include "views/bank/cBankListModel.h"

#include <QDialog>

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
    void ShowReloaded();
    void ShowButtons();
    [[nodiscard]] int Row() const; // -1: none is chosen

    cBankListModel& m_banks;
    QList<cBankListModel::cLine> m_before; // of the list that is loaded anew
    int m_rowBefore = -1;
    QLabel* m_empty;
    QTreeView* m_tree;
    QPushButton* m_add;
    QPushButton* m_change;
    QPushButton* m_remove;
};
