#pragma once

#include <QDialog>

class cAssignListModel;
class QCheckBox;
class QDialogButtonBox;
class QPushButton;
class QTreeView;

// Lets the user choose the entry that a bank transaction belongs to.
class frmZuordnung final : public QDialog
{
    Q_OBJECT

public:
    // `list` outlives the window.
    explicit frmZuordnung(cAssignListModel& list, QWidget* parent = nullptr);

private:
    void Build();
    QCheckBox* BuildScope();
    QDialogButtonBox* BuildButtons();
    void ShowState();
    void Assign();

    cAssignListModel& m_list;
    QTreeView* m_tree;
    QPushButton* m_assign = nullptr;
    QPushButton* m_cancel = nullptr;
};
