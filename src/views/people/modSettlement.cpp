#include "views/people/modSettlement.h"

#include "model/modBudget.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

constexpr qsizetype mostExact = 14; // people among whom the fewest payments are looked for; it doubles with each

class cCounter
{
public:
    cCounter(const QStringList& people, const modSettlement::fnShares& shares) : m_shares(shares)
    {
        for (const QString& name : people) {
            (void)Of(name);
        }
    }

    void Count(const cEntryItem& entry)
    {
        const QString payer = modPeople::Payer(entry);
        if (payer.isEmpty()) {
            return;
        }
        const bool isTransfer = entry.IsTransfer();
        const qint64 cents = modBudget::SpentCents(entry);
        const modPeople::cShares shares = isTransfer ? m_shares(entry.EntryAccountMove) : Bearers(entry, payer);
        if (shares.isEmpty()) {
            return; // a book of nobody, whose entries came with their payers from another
        }
        Of(payer).*(isTransfer ? &cPersonSum::Settled : &cPersonSum::Paid) += cents;
        Add(isTransfer ? m_received : m_borne, shares, cents);
        m_settlement.Counted.append({entry, payer, shares, cents});
    }

    // Each sum is split once, so that cents left over do not add up to euros.
    [[nodiscard]] cSettlement Take()
    {
        for (const cPot& pot : m_borne) {
            Share(pot, &cPersonSum::Borne, 1);
        }
        for (const cPot& pot : m_received) {
            Share(pot, &cPersonSum::Settled, -1);
        }
        m_settlement.Payments = modSettlement::Payments(m_settlement.People);
        return std::move(m_settlement);
    }

private:
    // What is shared in the same way.
    struct cPot
    {
        modPeople::cShares Shares;
        qint64 Cents = 0;
    };

    [[nodiscard]] modPeople::cShares Bearers(const cEntryItem& entry, const QString& payer) const
    {
        const modPeople::cShares own = m_shares(entry.EntryAccount);
        return modPeople::OwnerOf(own) == payer ? m_shares(QString()) : own;
    }

    static void Add(QList<cPot>& pots, const modPeople::cShares& shares, qint64 cents)
    {
        const auto pot =
            std::find_if(pots.begin(), pots.end(), [&](const cPot& each) { return each.Shares == shares; });
        if (pot == pots.end()) {
            pots.append({shares, cents});
        } else {
            pot->Cents += cents;
        }
    }

    void Share(const cPot& pot, qint64 cPersonSum::*sum, int sign)
    {
        const QList<qint64> parts = modPeople::Split(pot.Cents, pot.Shares);
        for (qsizetype i = 0; i < parts.size(); ++i) {
            Of(pot.Shares.at(i).Person).*sum += sign * parts.at(i);
        }
    }

    cPersonSum& Of(const QString& name)
    {
        QList<cPersonSum>& people = m_settlement.People;
        const auto known =
            std::find_if(people.begin(), people.end(), [&](const cPersonSum& person) { return person.Name == name; });
        return known == people.end() ? people.emplaceBack(cPersonSum{name}) : *known;
    }

    const modSettlement::fnShares& m_shares;
    QList<cPot> m_borne;
    QList<cPot> m_received;
    cSettlement m_settlement;
};

// Among people whose balances come to zero together: the largest debt goes to the largest claim until nothing is left.
// That is one payment less than there are people.
void SettleGroup(QList<cPersonSum> people, QList<cPayment>& payments)
{
    const auto less = [](const cPersonSum& a, const cPersonSum& b) { return a.Balance() < b.Balance(); };
    while (people.size() > 1) {
        const auto debtor = std::min_element(people.begin(), people.end(), less);
        const auto creditor = std::max_element(people.begin(), people.end(), less);
        const qint64 cents = std::min(-debtor->Balance(), creditor->Balance());
        if (cents <= 0) {
            return;
        }
        payments.append({debtor->Name, creditor->Name, cents});
        debtor->Settled += cents;
        creditor->Settled -= cents;
        people.removeIf([](const cPersonSum& person) { return person.Balance() == 0; });
    }
}

// Divides people into as many groups as possible that come to zero each; every group saves a payment. Each set of
// people is looked at once: the most groups of a set are those of the set without one of them, and one more where it
// comes to zero itself.
QList<QList<cPersonSum>> Groups(const QList<cPersonSum>& people)
{
    const auto count = static_cast<std::uint32_t>(people.size());
    const std::size_t sets = std::size_t{1} << count;
    std::vector<qint64> sums(sets);
    std::vector<int> most(sets);
    std::vector<std::uint32_t> without(sets);
    for (std::size_t set = 1; set < sets; ++set) {
        most[set] = -1;
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::size_t rest = set & ~(std::size_t{1} << i);
            if (rest != set && most[rest] > most[set]) {
                most[set] = most[rest];
                without[set] = i;
            }
            sums[set] = rest != set ? sums[rest] + people.at(i).Balance() : sums[set];
        }
        most[set] += sums[set] == 0 ? 1 : 0;
    }
    QList<QList<cPersonSum>> groups;
    for (std::size_t set = sets - 1; set != 0; set &= ~(std::size_t{1} << without[set])) {
        if (sums[set] == 0) {
            groups.append(QList<cPersonSum>());
        }
        groups.last().append(people.at(without[set]));
    }
    return groups;
}

} // namespace

cSettlement modSettlement::Figures(const cEntryItemList& entries, const QStringList& people, const fnShares& shares)
{
    cEntryItemList byDay = entries;
    std::stable_sort(byDay.begin(), byDay.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    cCounter counter(people, shares);
    for (const cEntryItem& entry : byDay) {
        counter.Count(entry);
    }
    return counter.Take();
}

QList<cPayment> modSettlement::Payments(const QList<cPersonSum>& people)
{
    QList<cPersonSum> open = people;
    open.removeIf([](const cPersonSum& person) { return person.Balance() == 0; });
    QList<cPayment> payments;
    const QList<QList<cPersonSum>> groups = open.size() > mostExact ? QList<QList<cPersonSum>>{open} : Groups(open);
    for (const QList<cPersonSum>& group : groups) {
        SettleGroup(group, payments);
    }
    return payments;
}
