#pragma once

#include "views/list/cEntryListModel.h"

#include <QDialog>
#include <QKeySequence>
#include <QList>

#include <functional>

class cCellEdit;
class cEntryTree;
class cSearchFields;
class cSearchModel;
class cSumBar;
class QAction;
class QLabel;
class QLayout;
class QPushButton;

// The search: fields above, what they find below, with its sums. It stays open beside the main window.
class frmSuche final : public QDialog
{
    Q_OBJECT

public:
    // `cells`: what is typed into cells of the list. Both outlive the window.
    frmSuche(cSearchModel& model, cCellEdit& cells, QWidget* parent = nullptr);
    ~frmSuche() override;

    void Present();     // shows the window in front, ready to type
    void Refresh();     // after the book changed
    void ResetLayout(); // columns as at first

Q_SIGNALS:
    void EditRequested(const cEntryListModel::cKey& key);
    void DeleteRequested(const QList<cEntryListModel::cKey>& keys);
    void ChangeRequested(const QList<cEntryListModel::cKey>& keys);
    void DuplicateRequested(const QList<cEntryListModel::cKey>& keys); // for today
    void NextMonthRequested(const QList<cEntryListModel::cKey>& keys); // the same a month later
    void CellWritten();                                                // in the list of what was found
    void ReceiptsDropped(int entryId, const QStringList& paths);
    void ReceiptsRequested(int entryId); // the window of the entry's receipts
    void UndoRequested();
    void RedoRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Build();
    QLayout* BuildButtons();
    void Connect();
    void Search();
    void ShowFound();
    void ShowButtons();
    void GoToList();
    void Edit();
    void Delete();
    void BuildMenu();
    // Something for the selected lines, in a menu and with keys while the list has the focus.
    QAction* AddAction(QWidget& menu, const QString& text, const QList<QKeySequence>& keys,
                       const std::function<void()>& action);

    cSearchModel& m_model;
    cSearchFields* m_fields;
    QLabel* m_hint;
    cEntryTree* m_tree;
    cSumBar* m_sums;
    QPushButton* m_edit;
    QPushButton* m_delete;
    QPushButton* m_change;
    QPushButton* m_duplicate;
    QPushButton* m_clear;
    QPushButton* m_close;
    QList<QAction*> m_writing; // what changes the selected lines
};
