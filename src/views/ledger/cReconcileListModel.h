#pragma once

#include "views/ledger/cReconciliation.h"

#include <QAbstractTableModel>

#include <optional>

// The differences between the bank and the book as a list, with what is to be said about them.
class cReconcileListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Kind, Name, BankDay, BankAmount, BookDay, BookAmount, ColumnCount };
    enum eRole { ToneRole = Qt::UserRole }; // eMoneyTone

    explicit cReconcileListModel(const cBookTools& tools, QObject* parent = nullptr);
    ~cReconcileListModel() override;

    void Show(const QString& number, QDate until = {});
    void Reload();

    [[nodiscard]] const cReconciliation& Found() const { return m_reconciliation; }
    [[nodiscard]] std::optional<cReconcileItem> ItemAt(int row) const;
    [[nodiscard]] QString CureText(int row) const;
    [[nodiscard]] QString Finding() const { return m_reconciliation.Finding(); }
    [[nodiscard]] bool CanConfirm() const { return m_reconciliation.Agrees() && !m_isConfirmed; }
    [[nodiscard]] QString ConfirmText() const; // "Stimmt bis 31.10.2026"
    [[nodiscard]] bool TakeBank(int row);
    void Confirm();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void Changed();

private:
    [[nodiscard]] QString Text(const cReconcileItem& item, int column) const;

    const cBookTools& m_tools;
    cReconciliation m_reconciliation;
    bool m_isConfirmed = false;
    QDate m_wanted; // day up to which is looked; invalid: as far as the bank's balances go
};
