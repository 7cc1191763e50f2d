#pragma once

#include <QDialog>

class cBookCheck;
class QLabel;
class QLayout;
class QPushButton;
class QTreeView;

// What a look at the whole book has found, with a way to mend each entry of it.
class frmPruefung final : public QDialog
{
    Q_OBJECT

public:
    // `check` outlives the window.
    explicit frmPruefung(cBookCheck& check, QWidget* parent = nullptr);

Q_SIGNALS:
    void EntryRequested(int entryId); // to be edited; the check is looked at again afterwards
    void DeleteRequested(int entryId);

private:
    void BuildList();
    [[nodiscard]] QLayout* BuildButtons();
    void ShowFindings();
    void ShowButtons();
    [[nodiscard]] int Entry() const; // ID of the chosen line; 0 for none
    void Request(void (frmPruefung::*request)(int));

    cBookCheck& m_check;
    QLabel* m_file;
    QLabel* m_entries;
    QLabel* m_receipts;
    QTreeView* m_tree;
    QPushButton* m_edit;
    QPushButton* m_delete;
};
