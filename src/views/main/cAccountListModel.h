#pragma once

#include "model/cTemplateItem.h"
#include "views/list/cBalanceDays.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

class cAmountFormat;

// The accounts panel: accounts below their groups with balance and number of staged rows that wait, then the total.
class cAccountListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Name, Balance, Open, ColumnCount };
    enum eRole { KindRole = Qt::UserRole, ToneRole, ChosenRole, WarningRole };
    enum eKind { Group, Account, Total };

    explicit cAccountListModel(const cAmountFormat& format, QObject* parent = nullptr);
    ~cAccountListModel() override;

    // `balances` in cents, none when they could not be read, and `open` by account name; names that no definition has
    // (left from a renamed account, say) are listed in a group of their own, so that no money is missing. The open rows
    // under the empty name belong to bank accounts without account in the book; they count in the total.
    void SetAccounts(const cTemplateItemList& accounts, const std::optional<QHash<QString, qint64>>& balances,
                     const QHash<QString, int>& open);
    void SetChosen(const QString& account); // empty: none
    // What there is to warn of. It stays until the next call.
    void SetWarnings(const QList<cLimitWarning>& warnings);
    // Up to which day accounts agree with their bank, by account name. It stays until the next call.
    void SetReconciled(const QHash<QString, QDate>& days) { m_reconciled = days; }

    // Whether the balances are what came and went in a period. It stays until the next call.
    void SetShowsChange(bool showsChange) { m_showsChange = showsChange; }

    // Account name of a row; empty for groups and the total.
    [[nodiscard]] QString AccountAt(const QModelIndex& index) const;
    // What choosing a row shows: its account, or all of them (empty) for the total; none for the head of a group.
    [[nodiscard]] std::optional<QString> ChoiceAt(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct cRow
    {
        eKind Kind = Account;
        QString Name;
        qint64 Cents = 0;
        int Open = 0;
    };

    [[nodiscard]] QString Text(const cRow& row, int column) const;
    [[nodiscard]] QString Hint(const cRow& row, int column) const;
    [[nodiscard]] QString Warning(const cRow& row) const;
    [[nodiscard]] QString Reconciled(const cRow& row) const;

    const cAmountFormat& m_format;
    std::vector<cRow> m_rows;
    bool m_hasBalances = true;
    bool m_showsChange = false;
    QString m_chosen;
    QHash<QString, QString> m_warnings; // sentences by account name
    QHash<QString, QDate> m_reconciled;
};
