#pragma once

#include <QDate>
#include <QList>
#include <QRandomGenerator>
#include <QString>

// An invented household with what its banks book and what it writes down by hand. Everything follows from the seed.
class cHousehold
{
public:
    enum class eFormat { MT940, Camt, Csv };

    // What a bank books.
    struct cBooking
    {
        QDate Day;
        qint64 Cents = 0; // signed
        QString Name;
        QString Iban;
        QString Purpose;
        QString Kind;     // the bank's booking text
        QString Category; // the path that is right for it; empty where nobody could know
    };

    struct cAccount
    {
        QString Name; // in the book
        QString Iban;
        eFormat Format = eFormat::MT940;
        qint64 Opening = 0;
        QList<cBooking> Bookings; // by day

        [[nodiscard]] qint64 BalanceOn(QDate day) const;
    };

    // What somebody types before the bank has booked it, with the day and the amount that they remember.
    struct cNote
    {
        QDate TypedOn;
        QDate Day;
        qint64 Cents = 0; // signed
        QString Account;
        QString Category;
        QString Text;
        bool IsMonthly = false;
    };

    cHousehold(quint32 seed, QDate first, int months);

    [[nodiscard]] const QList<cAccount>& Accounts() const { return m_accounts; }
    [[nodiscard]] const QList<cNote>& Notes() const { return m_notes; }

private:
    struct cPayee
    {
        QString Name;
        QString Iban;
        QString Purpose; // "{0}" is the month
        QString Kind;
        QString Category{};
    };

    void AddIncome();
    void AddHousing();
    void AddInsurances();
    void AddContracts();
    void AddPurchases();
    void AddEqualRows();
    void AddCash();
    void AddPayPal();
    void AddRefunds();
    void AddTransfers();
    void AddCard();
    void AddInterest();

    // Books every `step` months from `from` to `to` on a day of the month, on Fridays or Mondays instead of weekends.
    void Repeat(int account, const cPayee& payee, qint64 cents, int day, QDate from, QDate to, int step = 1);
    void Book(int account, QDate day, const cPayee& payee, qint64 cents);
    void Note(int account, QDate day, const cPayee& payee, qint64 cents, bool isMonthly);
    [[nodiscard]] int Dice(int from, int to); // both included
    [[nodiscard]] bool Happens(int percent) { return Dice(1, 100) <= percent; }
    [[nodiscard]] QString Iban();
    [[nodiscard]] QDate Month(int number) const { return m_first.addMonths(number); }
    [[nodiscard]] QDate Last() const { return m_first.addMonths(m_months).addDays(-1); }

    QRandomGenerator m_random;
    QDate m_first;
    int m_months;
    QList<cAccount> m_accounts;
    QList<cNote> m_notes;
};
