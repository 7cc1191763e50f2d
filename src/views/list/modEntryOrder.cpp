#include "views/list/modEntryOrder.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayNames.h"
#include "model/modWord.h"

#include <QCollator>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

// Numbers of unique texts in the order of their first appearance.
std::vector<int> Unique(int count, const std::function<QString(int)>& text, QStringList& unique)
{
    QHash<QString, int> known;
    std::vector<int> numbers(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const QString value = text(i);
        const auto found = known.constFind(value);
        if (found != known.constEnd()) {
            numbers[static_cast<std::size_t>(i)] = *found;
            continue;
        }
        numbers[static_cast<std::size_t>(i)] = static_cast<int>(unique.size());
        known.insert(value, static_cast<int>(unique.size()));
        unique.append(value);
    }
    return numbers;
}

// Positions of the texts in alphabetical order.
std::vector<int> AlphabeticalOrder(const QStringList& texts)
{
    QCollator collator(QLocale(QLocale::German, QLocale::Germany));
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts) {
        keys.push_back(collator.sortKey(text));
    }
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
    });
    return order;
}

using cKeyOf = qint64 (*)(QDate);
using cNameOf = QString (*)(QDate);

struct cDateGrouping
{
    const QString* Word;
    cKeyOf Key;
    cNameOf Name;
};

qint64 DayKey(QDate day)
{
    return day.toJulianDay();
}

QDate Monday(QDate day)
{
    return day.addDays(1 - day.dayOfWeek());
}

qint64 WeekKey(QDate day)
{
    return Monday(day).toJulianDay();
}

qint64 MonthKey(QDate day)
{
    return day.year() * 12LL + day.month();
}

QString WeekName(QDate day)
{
    int year = 0;
    const int week = day.weekNumber(&year);
    return cText::Tr("Woche {0}/{1} ab {2}",
                     {QString::number(week), QString::number(year), modDate::ToText(Monday(day))});
}

constexpr std::array<cDateGrouping, 3> dateGroupings{{
    {&modWord::NachDatum, DayKey, modEntryOrder::DayName},
    {&modWord::NachWoche, WeekKey, WeekName},
    {&modWord::NachMonat, MonthKey, modDayNames::MonthText},
}};

using cTextOf = QString (*)(const cEntryItem&);

struct cTextGrouping
{
    const QString* Word;
    cTextOf Text;
};

constexpr std::array<cTextGrouping, 4> textGroupings{{
    {&modWord::NachSparte,
     [](const cEntryItem& entry) { return entry.EntryCategory.left(entry.EntryCategory.indexOf(u"; ")); }},
    {&modWord::NachKategorie, [](const cEntryItem& entry) { return entry.EntryCategory; }},
    {&modWord::NachKonto, [](const cEntryItem& entry) { return entry.EntryAccount; }},
    {&modWord::NachBuchungsart, [](const cEntryItem& entry) { return modWord::EntryTypes().ToShown(entry.EntryType); }},
}};

modEntryOrder::cRanked DateGroups(const cEntryItemList& entries, const std::vector<int>& shown,
                                  const cDateGrouping& grouping)
{
    std::map<qint64, std::pair<QDate, qint64>> groups; // a day and the number, by key in calendar order
    for (const int entry : shown) {
        const QDate day = entries.at(entry).EntryDate;
        groups.try_emplace(grouping.Key(day), day, 0);
    }
    modEntryOrder::cRanked ranked;
    for (auto& [key, group] : groups) {
        group.second = ranked.Names.size();
        ranked.Names.append(grouping.Name(group.first));
    }
    ranked.Ranks.reserve(shown.size());
    for (const int entry : shown) {
        ranked.Ranks.push_back(groups.at(grouping.Key(entries.at(entry).EntryDate)).second);
    }
    return ranked;
}

} // namespace

QString modEntryOrder::DayName(QDate day)
{
    return modDayNames::Language().dayName(day.dayOfWeek()) + u", "_s + modDate::ToText(day);
}

modEntryOrder::cRanked modEntryOrder::Rank(int count, const std::function<QString(int)>& text)
{
    QStringList unique;
    const std::vector<int> numbers = Unique(count, text, unique);
    const std::vector<int> order = AlphabeticalOrder(unique);
    cRanked ranked;
    std::vector<qint64> rankOf(order.size());
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        rankOf[static_cast<std::size_t>(order[rank])] = static_cast<qint64>(rank);
        ranked.Names.append(unique.at(order[rank]));
    }
    ranked.Ranks.reserve(numbers.size());
    for (const int number : numbers) {
        ranked.Ranks.push_back(rankOf[static_cast<std::size_t>(number)]);
    }
    return ranked;
}

modEntryOrder::cRanked modEntryOrder::Groups(const cEntryItemList& entries, const std::vector<int>& shown,
                                             const QString& grouping)
{
    for (const cDateGrouping& known : dateGroupings) {
        if (grouping == *known.Word) {
            return DateGroups(entries, shown, known);
        }
    }
    for (const cTextGrouping& known : textGroupings) {
        if (grouping == *known.Word) {
            return Rank(static_cast<int>(shown.size()),
                        [&](int i) { return known.Text(entries.at(shown[static_cast<std::size_t>(i)])); });
        }
    }
    return {};
}
