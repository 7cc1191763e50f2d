#pragma once

#include <QDate>
#include <QString>

#include <optional>

class cStatementLedger;
struct cBookTools;
struct cEntryItem;

// What an account held before its first bank row, as the start balance with which the book agrees with the bank from
// then on.
class cOpeningBalance
{
public:
    struct cOffer
    {
        QString Account;
        QDate Day;       // before the first row
        qint64 Bank = 0; // on that day, in cents
        qint64 Book = 0;
        QDate LastDay{};  // of the statement
        qint64 Last = 0;  // what its rows come to by then
        qint64 Start = 0; // the start balance that makes them equal
        QDate StartDay;
        std::optional<qint64> Former; // the present start balance
        bool IsOnlyDay = false;       // the book agrees from the first row on, but lacks what the bank named before
        QDate FormerDay{};            // valid: it was that of a later day, from which the bank's was counted back
    };

    explicit cOpeningBalance(const cBookTools& tools) : m_tools(tools) {}

    // The numbers, each once, that are expected; those of which the rows with higher IDs are the first, or one of them
    // lies before the first balance of the bank, from which the start balance was counted back; those of `balanced`, of
    // which the bank has now named an earlier balance than before, or one more from before the first row; without any,
    // those whose rows begin before the others and no later than the start balance, which counts on top of them then.
    // To be asked before numbers get their accounts: all that one without an account holds counts for the first time.
    [[nodiscard]] QStringList Due(QStringList numbers, int newestBefore, const QStringList& balanced) const;
    // Expected numbers are due until they are settled, also when the program ended while the user was asked.
    void Expect(const QStringList& numbers) const;
    void Settle(const QString& number) const;
    // Nothing where the book agrees already, where the bank's balance before the first row is not certain, or where the
    // number has no account or shares it with another. The day is that from which on the bank named no other balance.
    [[nodiscard]] std::optional<cOffer> For(const QString& number) const;
    // The same for who has been told what the account held at the end of a day: where the bank's balance before the
    // first row is not certain, the rows that are there have led to it. Nothing where the book agrees already, or where
    // the number has no account or shares it with another.
    [[nodiscard]] std::optional<cOffer> For(const QString& number, QDate day, qint64 cents) const;
    [[nodiscard]] QString Question(const cOffer& offer) const;
    // "Startguthaben von 'Girokonto': 20,00 € am 30.04.2026, laut Kontoauszug."
    [[nodiscard]] QString Report(const cOffer& offer) const;
    // As a step of its own. False when the database refuses, of which the user was told.
    [[nodiscard]] bool Take(const cOffer& offer) const;

private:
    [[nodiscard]] bool IsDue(const QString& number, int newestBefore) const;
    [[nodiscard]] std::optional<cOffer> OfferOf(const cStatementLedger& ledger, qint64 bank,
                                                const std::optional<cEntryItem>& stored) const;
    [[nodiscard]] std::optional<qint64> Opening(const cStatementLedger& ledger) const;
    [[nodiscard]] std::optional<qint64> CountBack(const cStatementLedger& ledger,
                                                  const std::optional<cEntryItem>& stored) const;

    const cBookTools& m_tools;
};
