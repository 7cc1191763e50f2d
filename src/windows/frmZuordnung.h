#pragma once

#include <QDialog>

class cAssignList;
class QDialogButtonBox;
class QTreeView;

// Lets the user choose the entry that a bank transaction belongs to.
class frmZuordnung final : public QDialog
{
    Q_OBJECT

public:
    // `list` outlives the window.
    explicit frmZuordnung(cAssignList& list, QWidget* parent = nullptr);

private:
    void Build();
    QDialogButtonBox* BuildButtons();
    void SetColumns();
    void Assign();

    cAssignList& m_list;
    QTreeView* m_tree;
};
