#include "import/stage/modEqualRows.h"

#include "import/read/cStatementRead.h"
#include "import/stage/cFetchMemory.h"
#include "import/stage/cImportResult.h"
#include "import/stage/cStaging.h"
#include "model/modBalanceCheck.h"

#include <QMultiHash>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace modEqualRows;

namespace {

// The rows that were left out as known, in groups of equal ones, with the number of times that the source has each.
class cGroups
{
public:
    struct cGroup
    {
        QList<qsizetype> Places; // in the list of the rows that were left out
        int Most = 0;            // of all parts of the source
        int InPart = 0;
        qsizetype Told = 0;  // by marks of the bank, of all parts
        QSet<QString> Ids{}; // of the part
    };

    explicit cGroups(const cImportEntryList& leftOut) : m_leftOut(leftOut)
    {
        for (qsizetype place = 0; place < leftOut.size(); ++place) {
            if (cGroup* known = Find(leftOut.at(place))) {
                known->Places.append(place);
                continue;
            }
            m_index.insert(leftOut.at(place).EqualHash(), m_groups.size());
            m_groups.push_back({{place}});
        }
    }

    void Count(const cStatementRead& read)
    {
        for (qsizetype i = 0; i < read.Entries.size(); ++i) {
            if (read.Parts.contains(i)) {
                EndPart();
            }
            if (cGroup* group = Find(read.Entries.at(i))) {
                ++group->InPart;
                if (const auto id = read.Ids.constFind(i); id != read.Ids.constEnd()) {
                    group->Ids.insert(*id);
                }
            }
        }
        EndPart();
    }

    [[nodiscard]] const std::vector<cGroup>& All() const { return m_groups; }

private:
    [[nodiscard]] cGroup* Find(const cImportEntry& entry)
    {
        const auto [first, last] = m_index.equal_range(entry.EqualHash());
        const auto same = std::find_if(first, last, [&](std::size_t group) {
            return m_leftOut.at(m_groups[group].Places.constFirst()).isEqualButBlanks(entry);
        });
        return same == last ? nullptr : &m_groups[*same];
    }

    void EndPart()
    {
        for (cGroup& group : m_groups) {
            group.Most = std::max(group.Most, group.InPart);
            group.InPart = 0;
            group.Told = std::max(group.Told, group.Ids.size());
            group.Ids.clear();
        }
    }

    const cImportEntryList& m_leftOut;
    std::vector<cGroup> m_groups;
    QMultiHash<size_t, std::size_t> m_index; // by EqualHash
};

// A repeat of a row that came in another format would look like the same transaction in other words.
cImportEntry InWordsOf(const cImportEntryList& staged, cImportEntry repeat)
{
    if (!staged.isEmpty()) {
        repeat.ImportBeneficiary = staged.constFirst().ImportBeneficiary;
        repeat.ImportBeneficiaryBLZ = staged.constFirst().ImportBeneficiaryBLZ;
        repeat.ImportPurpose = staged.constFirst().ImportPurpose;
    }
    return repeat;
}

void RemovePlaces(cImportEntryList& rows, const QSet<qsizetype>& places, qsizetype first)
{
    qsizetype place = first;
    rows.removeIf([&](const cImportEntry&) { return places.contains(place++); });
}

bool IsIn(const QList<modBalanceCheck::cFault>& faults, QDate day)
{
    return std::any_of(faults.begin(), faults.end(),
                       [&](const modBalanceCheck::cFault& fault) { return fault.From <= day && day <= fault.To; });
}

QList<modBalanceCheck::cFault> Faults(cImportEntryList rows, const cBankBalanceList& balances)
{
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto& a, const auto& b) { return a.ImportDate < b.ImportDate; });
    std::vector<modBalanceCheck::cRow> amounts;
    for (const cImportEntry& row : rows) {
        amounts.push_back({row.ImportDate, row.ImportValue});
    }
    return modBalanceCheck::Check(amounts, balances).Faults;
}

} // namespace

void modEqualRows::Find(const cStatementRead& read, cStaging& staging, const cFetchMemory* memory,
                        cImportResult& result)
{
    const cImportEntryList leftOut = result.Duplicates + result.Alike;
    if (leftOut.isEmpty()) {
        return;
    }
    cGroups groups(leftOut);
    groups.Count(read);
    QSet<qsizetype> moved;
    for (const cGroups::cGroup& group : groups.All()) {
        const cImportEntryList there = staging.AllButBlanks(leftOut.at(group.Places.constFirst()));
        qsizetype free = group.Places.size(); // the last ones are taken first
        for (int number = static_cast<int>(there.size()) + 1; number <= group.Most && free > 0; ++number) {
            const cImportEntry& entry = leftOut.at(group.Places.at(--free));
            moved.insert(group.Places.at(free));
            if (memory != nullptr && memory->HasBrought(entry, number)) {
                result.Deleted.append(entry);
            } else {
                result.Repeats.append({InWordsOf(there, entry), number, number <= group.Told});
            }
        }
    }
    const qsizetype duplicates = result.Duplicates.size();
    RemovePlaces(result.Duplicates, moved, 0);
    RemovePlaces(result.Alike, moved, duplicates);
}

QList<eProof> modEqualRows::Prove(const cRepeatList& repeats, const cImportEntryList& staged,
                                  const fnBalances& balances)
{
    QList<eProof> proofs(repeats.size(), eProof::None);
    cImportEntryList all;
    std::transform(repeats.begin(), repeats.end(), std::back_inserter(all),
                   [](const cRepeat& repeat) { return repeat.Entry; });
    const QStringList accounts = cImportHive::AccountsOf(all);
    for (const QString& account : accounts) {
        const auto isOther = [&](const cImportEntry& row) { return row.ImportAccount != account; };
        cImportEntryList without = staged;
        without.removeIf(isOther);
        cImportEntryList with = without + all;
        with.removeIf(isOther);
        const cBankBalanceList known = balances(account);
        const QList<modBalanceCheck::cFault> faultsWithout = Faults(without, known);
        const QList<modBalanceCheck::cFault> faultsWith = Faults(with, known);
        for (qsizetype i = 0; i < all.size(); ++i) {
            const bool isWrongWithout = IsIn(faultsWithout, all.at(i).ImportDate);
            if (all.at(i).ImportAccount == account && isWrongWithout != IsIn(faultsWith, all.at(i).ImportDate)) {
                proofs[i] = isWrongWithout ? eProof::Real : eProof::Wrong;
            }
        }
    }
    return proofs;
}

void modEqualRows::Settle(QList<cImportResult>& results, cStaging& staging)
{
    cRepeatList open;
    const auto isSettled = [&](const cRepeat& repeat) {
        return staging.AllButBlanks(repeat.Entry).size() >= repeat.Number
            || std::any_of(open.begin(), open.end(), [&](const cRepeat& other) {
                   return other.Number == repeat.Number && other.Entry.isEqualButBlanks(repeat.Entry);
               });
    };
    for (cImportResult& result : results) {
        result.Repeats.removeIf(isSettled);
        open += result.Repeats;
    }
}
