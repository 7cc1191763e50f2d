#pragma once

#include "views/ledger/cStatementLedger.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct cBookTools;

// One difference between the bank's rows and the entries of the account.
struct cReconcileItem
{
    enum class eKind { BankOnly, BookOnly, Differs, Start };

    eKind Kind = eKind::BankOnly;
    int RowId = 0;   // 0: none
    int EntryId = 0; // 0: none
    QDate BankDay;
    QDate BookDay;
    qint64 BankCents = 0;
    qint64 BookCents = 0;
    QString Text; // who or what
    bool IsSeries = false;
    bool IsSplit = false;
};

// A bank account row by row against the book up to a day: what only the bank has, what only the book has, and what the
// two have on another day or with another amount. The balance that the bank named decides whether both agree, so a
// start balance cannot hide anything.
class cReconciliation
{
public:
    explicit cReconciliation(const cBookTools& tools);

    // Up to the day, by default that of the bank's newest balance, else of the newest row.
    void Load(const QString& number, QDate until = {});

    [[nodiscard]] const QList<cReconcileItem>& Items() const { return m_items; } // by day
    [[nodiscard]] const QString& Number() const { return m_ledger.Number(); }
    [[nodiscard]] QString Account() const { return m_ledger.AccountOf(Number()); }
    [[nodiscard]] QDate Until() const { return m_until; }
    // At the end of the day, in cents; none where the bank named no balance.
    [[nodiscard]] std::optional<qint64> Bank() const { return m_bank; }
    [[nodiscard]] qint64 Book() const { return m_book; }
    [[nodiscard]] bool Agrees() const { return m_bank == m_book && m_items.isEmpty(); }
    // All of it in a sentence or two.
    [[nodiscard]] QString Finding() const;
    // That open rows seem to have their entries, and which command assigns them; empty without such rows.
    [[nodiscard]] QString WayOut(const QString& command) const;

    // "nur bei der Bank", and what cures it: "Umsatz buchen".
    [[nodiscard]] static QString KindText(const cReconcileItem& item);
    [[nodiscard]] static QString CureText(const cReconcileItem& item);
    [[nodiscard]] static QString KindName(const cReconcileItem& item); // for programs: "bank only"

    // Gives the entry the day and amount of the bank, or the account the start balance that is missing, as one step.
    // False when nothing was changed, of which the user was told. The other kinds are cured by booking and deleting.
    [[nodiscard]] bool TakeBank(const cReconcileItem& item);

    // Remembers that both agree up to the day. False where they do not, or when the database refuses.
    [[nodiscard]] bool Confirm();

private:
    void AddItems();
    void AddStart();
    [[nodiscard]] qsizetype CountPairs() const;
    [[nodiscard]] QString Unexplained(const QStringList& values) const;
    [[nodiscard]] bool TakeForEntry(const cReconcileItem& item);
    [[nodiscard]] bool TakeForSeries(const cReconcileItem& item);

    const cBookTools& m_tools;
    cStatementLedger m_ledger;
    QList<cReconcileItem> m_items;
    QDate m_until;
    std::optional<qint64> m_bank;
    qint64 m_book = 0;
    QDate m_since; // valid where no row explains why both differ
};
