#include "import/plan/modStagedTwins.h"

#include "base/modFold.h"
#include "base/modSimilar.h"
#include "import/read/modAccountNumber.h"
#include "model/modCutText.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using modStagedTwins::cLookups;
using modStagedTwins::cTwin;
using modStagedTwins::eSame;

constexpr double similarNames = 0.7;
constexpr qsizetype shortestPart = 4;  // "AG" is a part of too many names
constexpr std::size_t mostOthers = 50; // a day with more equal amounts tells nothing about single rows
constexpr qint64 farthestDays = 4;     // between booking and value: a weekend with a holiday on each side

// Account and amount of a row as one number, and its day. Rows of which these are the same are looked at closely.
struct cPlace
{
    size_t Hash = 0;
    qint64 Day = 0;
    int Row = 0;

    bool operator<(const cPlace& other) const
    {
        return std::tie(Hash, Day, Row) < std::tie(other.Hash, other.Day, other.Row);
    }
};

using itPlace = std::vector<cPlace>::const_iterator;

// The first place from `first` on of which the field is another.
template <typename tField>
itPlace EndOf(itPlace first, itPlace end, tField cPlace::*field)
{
    return std::find_if(first, end, [&](const cPlace& place) { return place.*field != (*first).*field; });
}

// Some formats fill the place of an account that is not known with zeros.
bool HasNumber(const QString& account)
{
    return std::any_of(account.begin(), account.end(), [](QChar c) { return c != u'0' && !c.isSpace(); });
}

struct cWho
{
    QString Name; // empty when the row names nobody
    QString Text;
};

cWho Who(const cImportEntry& torn)
{
    const cImportEntry row = modCutText::WholeWords(torn);
    const QString text = row.ImportPurpose.isEmpty() ? row.ImportType : row.ImportPurpose;
    return {modFold::Fold(row.ImportBeneficiary.simplified()).Spelled, modFold::Fold(text.simplified()).Spelled};
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

// A row that names nobody may have the name in its text, or have lost it.
bool IsSomebody(const cWho& a, const cWho& b)
{
    const bool isNamed = !a.Name.isEmpty() && !b.Name.isEmpty();
    return AreNamesAlike(a.Name.isEmpty() ? a.Text : a.Name, b.Name.isEmpty() ? b.Text : b.Name)
        || (!isNamed && AreNamesAlike(a.Text, b.Text));
}

std::optional<eSame> Compare(const cImportEntry& a, const cImportEntry& b)
{
    const QString& first = a.ImportBeneficiaryAccount;
    const QString& second = b.ImportBeneficiaryAccount;
    if (HasNumber(first) && HasNumber(second)) {
        return modAccountNumber::IsSame(first, a.ImportBeneficiaryBLZ, second) ? std::optional(eSame::Counterparty)
                                                                               : std::nullopt;
    }
    return IsSomebody(Who(a), Who(b)) ? std::optional(eSame::Name) : std::nullopt;
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
    return qHashMulti(0, accounts.Of(row.ImportAccount), row.ImportValue);
}

// Those of open rows, and of the booked ones near their days: nearly all were booked long ago.
std::vector<cPlace> Places(const cImportEntryList& rows, cAccounts& accounts)
{
    QSet<qint64> open;
    for (const cImportEntry& row : rows) {
        if (!row.ImportAssigned) {
            open.insert(row.ImportDate.toJulianDay());
        }
    }
    QSet<qint64> days;
    for (const qint64 day : std::as_const(open)) {
        for (qint64 near = day - farthestDays; near <= day + farthestDays; ++near) {
            days.insert(near);
        }
    }
    std::vector<cPlace> places;
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const cImportEntry& row = rows.at(i);
        if (const qint64 day = row.ImportDate.toJulianDay(); days.contains(day)) {
            places.push_back({HashOf(row, accounts), day, i});
        }
    }
    std::sort(places.begin(), places.end());
    return places;
}

// The first one of the rows that may be the same transaction; a booked one goes before.
std::optional<cTwin> TwinOf(const cImportEntry& row, const std::vector<const cImportEntry*>& others,
                            const cLookups& lookups)
{
    std::optional<cTwin> twin;
    const int file = lookups.FileOf(row.ID).Number;
    for (const cImportEntry* other : others) {
        const bool isSameFile = file != 0 && lookups.FileOf(other->ID).Number == file;
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

// Of one day.
void FindOnDay(const cImportEntryList& rows, itPlace first, itPlace end, const cLookups& lookups,
               QHash<int, cTwin>& twins)
{
    std::vector<const cImportEntry*> group;
    for (itPlace place = first; end - first > 1 && place != end && group.size() < mostOthers; ++place) {
        group.push_back(&rows.at(place->Row));
    }
    for (const cImportEntry* row : group) {
        const std::optional<cTwin> twin = row->ImportAssigned ? std::nullopt : TwinOf(*row, group, lookups);
        if (twin) {
            twins.insert(row->ID, *twin);
        }
    }
}

QString Digits(const QString& text)
{
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](QChar c) { return c.isDigit(); });
    return digits;
}

// Two bills whose words are the same have numbers of their own.
bool ArePurposesAlike(const cImportEntry& a, const cImportEntry& b)
{
    const auto purpose = [](const cImportEntry& row) {
        return modFold::Fold(modCutText::WholeWords(row).ImportPurpose).Spelled.remove(u' ');
    };
    const QString first = purpose(a);
    const QString second = purpose(b);
    const QString digits = Digits(first);
    const QString others = Digits(second);
    return (digits.contains(others) || others.contains(digits)) && AreNamesAlike(first, second);
}

// Rows of one account and amount that two formats tell of different days.
class cShifted
{
public:
    cShifted(const cImportEntryList& rows, const cLookups& lookups) : m_rows(rows), m_lookups(lookups) {}

    void Find(itPlace first, itPlace end, QHash<int, cTwin>& twins)
    {
        m_told.clear();
        for (itPlace place = first; end - first > 1 && place != end; ++place) {
            const cImportEntry& row = m_rows.at(place->Row);
            m_told.push_back({&row, place->Day, m_lookups.FileOf(row.ID).Kind, {}});
        }
        const bool isOneKind =
            std::all_of(m_told.begin(), m_told.end(), [&](const cTold& told) { return told.Kind == m_told[0].Kind; });
        if (isOneKind) {
            return;
        }
        std::set<std::pair<const cImportEntry*, QChar>> taken; // by a row of the other kind
        for (const cPair& pair : Pairs()) {
            const cTold& a = m_told[pair.First];
            const cTold& b = m_told[pair.Second];
            if (taken.contains({a.Row, b.Kind}) || taken.contains({b.Row, a.Kind})) {
                continue;
            }
            taken.insert({{a.Row, b.Kind}, {b.Row, a.Kind}});
            Note(*a.Row, *b.Row, pair, twins);
            Note(*b.Row, *a.Row, pair, twins);
        }
    }

private:
    struct cTold
    {
        const cImportEntry* Row = nullptr;
        qint64 Day = 0;
        QChar Kind;
        std::optional<QString> Others; // the kinds of the rows that are alike on the same day
        qsizetype Before = 0;          // of its own kind in front of it
    };
    struct cPair
    {
        qint64 Days = 0; // between the two
        std::size_t First = 0;
        std::size_t Second = 0;
        eSame Same = eSame::Counterparty;
    };

    // The nearest first.
    [[nodiscard]] std::vector<cPair> Pairs()
    {
        std::vector<cPair> pairs;
        for (std::size_t i = 0; i < m_told.size(); ++i) {
            const std::size_t end = std::min(m_told.size(), i + mostOthers);
            for (std::size_t k = i + 1; k < end && m_told[k].Day - m_told[i].Day <= farthestDays; ++k) {
                if (const std::optional<eSame> same = Same(m_told[i], m_told[k])) {
                    pairs.push_back({m_told[k].Day - m_told[i].Day, i, k, *same});
                }
            }
        }
        std::stable_sort(pairs.begin(), pairs.end(), [](const cPair& a, const cPair& b) { return a.Days < b.Days; });
        return pairs;
    }

    // The texts, which take longer, come last.
    [[nodiscard]] std::optional<eSame> Same(cTold& a, cTold& b) const
    {
        const bool isOpen = !a.Row->ImportAssigned || !b.Row->ImportAssigned;
        if (!isOpen || a.Day == b.Day || a.Kind == b.Kind || IsToldBy(a, b.Kind) || IsToldBy(b, a.Kind)) {
            return std::nullopt;
        }
        const std::optional<eSame> same = Compare(*a.Row, *b.Row);
        return same && ArePurposesAlike(*a.Row, *b.Row) ? same : std::nullopt;
    }

    // A row of the other kind tells of one only: of two equal purchases of a day the second may be told of another day.
    // One that was staged although its equal was there is the second: the first was left out of its file.
    [[nodiscard]] bool IsToldBy(cTold& told, QChar kind) const
    {
        if (!told.Others) {
            told.Others = QString();
            const auto [first, end] = std::equal_range(m_told.begin(), m_told.end(), told,
                                                       [](const cTold& a, const cTold& b) { return a.Day < b.Day; });
            for (auto other = first; other != end; ++other) {
                const bool isOwn = other->Kind == told.Kind;
                if ((isOwn && &*other >= &told) || !Compare(*told.Row, *other->Row)) {
                    continue;
                }
                if (isOwn) {
                    ++told.Before;
                } else {
                    told.Others->append(other->Kind);
                    told.Before += other->Row->ID < told.Row->ID && other->Row->isEqual(*told.Row) ? 1 : 0;
                }
            }
        }
        return told.Others->count(kind) > told.Before;
    }

    // Of several twins the one counts that will be booked first: one that is, else the one that came first.
    void Note(const cImportEntry& row, const cImportEntry& other, const cPair& pair, QHash<int, cTwin>& twins) const
    {
        const auto place = [](const cImportEntry& each) { return std::pair(!each.ImportAssigned, each.ID); };
        const auto known = twins.constFind(row.ID);
        const bool isBehind =
            known != twins.constEnd() && std::any_of(m_told.begin(), m_told.end(), [&](const cTold& told) {
                return told.Row->ID == known->RowId && place(*told.Row) < place(other);
            });
        if (!row.ImportAssigned && !isBehind) {
            twins.insert(row.ID, {other.ID, pair.Same, static_cast<int>(row.ImportDate.daysTo(other.ImportDate))});
        }
    }

    const cImportEntryList& m_rows;
    const cLookups& m_lookups;
    std::vector<cTold> m_told; // by day
};

} // namespace

QHash<int, cTwin> modStagedTwins::Find(const cImportEntryList& rows, const cLookups& lookups)
{
    QHash<int, cTwin> twins;
    cAccounts accounts(lookups.AccountOf);
    cShifted shifted(rows, lookups);
    const std::vector<cPlace> places = Places(rows, accounts);
    for (itPlace first = places.begin(); first != places.end();) {
        const itPlace end = EndOf(first, places.end(), &cPlace::Hash);
        for (itPlace day = first; day != end;) {
            const itPlace next = EndOf(day, end, &cPlace::Day);
            FindOnDay(rows, day, next, lookups, twins);
            day = next;
        }
        shifted.Find(first, end, twins);
        first = end;
    }
    return twins;
}
