#include "import/plan/modStagedTwins.h"

#include "base/modFold.h"
#include "base/modSimilar.h"
#include "import/read/modAccountNumber.h"
#include "model/modCutText.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

using modStagedTwins::cTwin;
using modStagedTwins::eSame;

constexpr double similarNames = 0.7;
constexpr qsizetype shortestPart = 4;  // "AG" is a part of too many names
constexpr std::size_t mostOthers = 50; // a day with more equal amounts tells nothing about single rows

// Account, day and amount of a row as one number. Rows with the same number are looked at closely.
struct cPlace
{
    size_t Hash = 0;
    int Row = 0;
};

// Some formats fill the place of an account that is not known with zeros.
bool HasNumber(const QString& account)
{
    return std::any_of(account.begin(), account.end(), [](QChar c) { return c != u'0' && !c.isSpace(); });
}

// Who stands behind a row, by name or by what is written.
QString Name(const cImportEntry& torn)
{
    const cImportEntry row = modCutText::WholeWords(torn);
    const QString name = row.ImportBeneficiary.simplified();
    const QString text = row.ImportPurpose.isEmpty() ? row.ImportType : row.ImportPurpose;
    return modFold::Fold(name.isEmpty() ? text.simplified() : name).Spelled;
}

// Formats cut names off at different lengths, so a part of a name is as good as the whole.
bool AreNamesAlike(const QString& a, const QString& b)
{
    if (a == b) {
        return true;
    }
    const bool isPart = qMin(a.size(), b.size()) >= shortestPart && (a.contains(b) || b.contains(a));
    return isPart || modSimilar::Similarity(a, b) >= similarNames;
}

std::optional<eSame> Compare(const cImportEntry& a, const cImportEntry& b)
{
    const QString& first = a.ImportBeneficiaryAccount;
    const QString& second = b.ImportBeneficiaryAccount;
    if (HasNumber(first) && HasNumber(second)) {
        return modAccountNumber::IsSame(first, a.ImportBeneficiaryBLZ, second) ? std::optional(eSame::Counterparty)
                                                                               : std::nullopt;
    }
    return AreNamesAlike(Name(a), Name(b)) ? std::optional(eSame::Name) : std::nullopt;
}

// Asks about each number once.
class cAccounts
{
public:
    explicit cAccounts(const std::function<QString(const QString&)>& accountOf) : m_accountOf(accountOf) {}

    [[nodiscard]] const QString& Of(const QString& number)
    {
        auto known = m_names.find(number);
        if (known == m_names.end()) {
            const QString account = m_accountOf(number);
            known = m_names.insert(number, account.isEmpty() ? number : account);
        }
        return *known;
    }

private:
    const std::function<QString(const QString&)>& m_accountOf;
    QHash<QString, QString> m_names;
};

size_t HashOf(const cImportEntry& row, cAccounts& accounts)
{
    return qHashMulti(0, accounts.Of(row.ImportAccount), row.ImportDate.toJulianDay(), row.ImportValue);
}

// Those of open rows, and of the booked ones on their days: nearly all were booked long ago.
std::vector<cPlace> Places(const cImportEntryList& rows, cAccounts& accounts)
{
    QSet<qint64> days;
    for (const cImportEntry& row : rows) {
        if (!row.ImportAssigned) {
            days.insert(row.ImportDate.toJulianDay());
        }
    }
    std::vector<cPlace> places;
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        if (const cImportEntry& row = rows.at(i); days.contains(row.ImportDate.toJulianDay())) {
            places.push_back({HashOf(row, accounts), i});
        }
    }
    std::sort(places.begin(), places.end(),
              [](const cPlace& a, const cPlace& b) { return a.Hash != b.Hash ? a.Hash < b.Hash : a.Row < b.Row; });
    return places;
}

// The first one of the rows that may be the same transaction; a booked one goes before.
std::optional<cTwin> TwinOf(const cImportEntry& row, const std::vector<const cImportEntry*>& others,
                            const modStagedTwins::cLookups& lookups)
{
    std::optional<cTwin> twin;
    const int file = lookups.FileOf(row.ID);
    for (const cImportEntry* other : others) {
        const bool isSameFile = file != 0 && lookups.FileOf(other->ID) == file;
        if (other->ID == row.ID || isSameFile || other->isEqual(row) || other->ImportDate != row.ImportDate
            || other->ImportValue != row.ImportValue) {
            continue;
        }
        const std::optional<eSame> same = Compare(row, *other);
        if (same && (!twin || other->ImportAssigned)) {
            twin = {other->ID, *same};
            if (other->ImportAssigned) {
                break;
            }
        }
    }
    return twin;
}

} // namespace

QHash<int, cTwin> modStagedTwins::Find(const cImportEntryList& rows, const cLookups& lookups)
{
    QHash<int, cTwin> twins;
    cAccounts accounts(lookups.AccountOf);
    const std::vector<cPlace> places = Places(rows, accounts);
    for (std::size_t first = 0; first < places.size();) {
        std::size_t end = first + 1;
        while (end < places.size() && places[end].Hash == places[first].Hash) {
            ++end;
        }
        std::vector<const cImportEntry*> group;
        for (std::size_t i = first; end - first > 1 && i < end && group.size() < mostOthers; ++i) {
            group.push_back(&rows.at(places[i].Row));
        }
        for (const cImportEntry* row : group) {
            const std::optional<cTwin> twin = row->ImportAssigned ? std::nullopt : TwinOf(*row, group, lookups);
            if (twin) {
                twins.insert(row->ID, *twin);
            }
        }
        first = end;
    }
    return twins;
}
