#pragma once

#include "views/list/cEntryListModel.h"

#include <QWidget>

class cAccountListModel;
class QDropEvent;
class QLabel;
class QModelIndex;
class QTreeView;

// Accounts with their balances, left of the list: a click (or Enter) filters by the account, the total shows all
// accounts again, as a double click or Escape do.
class cAccountPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit cAccountPanel(cAccountListModel& model, QWidget* parent = nullptr);

    void SetTitle(const QString& title);
    void TakeRows(bool isTaken) { m_takesRows = isTaken; } // that are dragged onto an account

Q_SIGNALS:
    void AccountChosen(const QString& account); // empty: all
    void RenameRequested(const QString& account);
    // `shown`: the account by which their list shows the rows; empty for all accounts.
    void RowsDropped(const QList<cEntryListModel::cKey>& rows, const QString& account, const QString& shown);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int BalanceWidth() const;
    void FitColumns();
    void OpenMenu(const QPoint& position);
    void Choose(const QModelIndex& row);
    void TakeDrag(QDropEvent& event); // of entries over an account
    void Highlight(const QModelIndex& row);

    cAccountListModel& m_model;
    QLabel* m_title;
    QTreeView* m_view;
    bool m_takesRows = true;
};
