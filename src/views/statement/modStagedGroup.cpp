#include "views/statement/modStagedGroup.h"

#include "base/cText.h"
#include "model/modCutText.h"
#include "views/list/modEntryOrder.h"

#include <QDate>

#include <algorithm>
#include <array>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

// In the order of eGrouping.
constexpr std::array<const char16_t*, 5> words{u"Keine Gruppierung", u"Nach Empfänger", u"Nach Tag", u"Nach Vorschlag",
                                               u"Nach Kategorie"};

QString UnknownName()
{
    return cText::Tr("noch nicht verglichen");
}

// One shop comes in several spellings of upper and lower case; the first one is shown for all.
QString Counterparty(const cImportEntry& row)
{
    const QString name = modCutText::Name(row.ImportBeneficiary).simplified();
    return name.isEmpty() ? row.ImportBeneficiaryAccount : name;
}

modStagedGroup::cGroups ByCounterparty(const cImportEntryList& rows, const std::vector<int>& shown)
{
    QHash<QString, QString> spellings; // as the row has it -> as the group is named
    QHash<QString, QString> firstByLower;
    const auto name = [&](int place) {
        const cImportEntry& row = rows.at(shown[static_cast<std::size_t>(place)]);
        const QString& key = row.ImportBeneficiary.isEmpty() ? row.ImportBeneficiaryAccount : row.ImportBeneficiary;
        auto known = spellings.constFind(key);
        if (known == spellings.constEnd()) {
            const QString own = Counterparty(row);
            const QString lower = own.toLower();
            known = spellings.insert(key, firstByLower.contains(lower) ? firstByLower.value(lower) : own);
            firstByLower.insert(lower, *known);
        }
        return *known;
    };
    modEntryOrder::cRanked ranked = modEntryOrder::Rank(static_cast<int>(shown.size()), name);
    std::replace(ranked.Names.begin(), ranked.Names.end(), QString(), cText::Tr("Ohne Namen"));
    return {std::move(ranked.Ranks), std::move(ranked.Names)};
}

modStagedGroup::cGroups ByDay(const cImportEntryList& rows, const std::vector<int>& shown)
{
    std::map<qint64, qint64> numbers;
    for (const int row : shown) {
        numbers.try_emplace(rows.at(row).ImportDate.toJulianDay(), 0);
    }
    modStagedGroup::cGroups groups;
    for (auto& [day, number] : numbers) {
        number = groups.Names.size();
        groups.Names.append(modEntryOrder::DayName(QDate::fromJulianDay(day)));
    }
    groups.Numbers.reserve(shown.size());
    for (const int row : shown) {
        groups.Numbers.push_back(numbers.at(rows.at(row).ImportDate.toJulianDay()));
    }
    return groups;
}

// A group without rows is none.
modStagedGroup::cGroups ByPlan(const cImportEntryList& rows, const std::vector<int>& shown,
                               const modStagedGroup::cKnowledge& known)
{
    modStagedGroup::cGroups groups;
    groups.Names = {cText::Tr("schon im Buch"), cText::Tr("sicher"), cText::Tr("bitte ansehen"), UnknownName(),
                    cText::Tr("gebucht")};
    groups.Numbers.reserve(shown.size());
    for (const int row : shown) {
        groups.Numbers.push_back(static_cast<qint64>(known.PlanOf(rows.at(row))));
    }
    return groups;
}

// As proposed or as booked, by name.
modStagedGroup::cGroups ByCategory(const cImportEntryList& rows, const std::vector<int>& shown,
                                   const modStagedGroup::cKnowledge& known)
{
    modEntryOrder::cRanked ranked = modEntryOrder::Rank(static_cast<int>(shown.size()), [&](int place) {
        const cImportEntry& row = rows.at(shown[static_cast<std::size_t>(place)]);
        return known.PlanOf(row) == eStagedGroup::Unknown ? UnknownName() : known.CategoryOf(row);
    });
    std::replace(ranked.Names.begin(), ranked.Names.end(), QString(), cText::Tr("Ohne Kategorie"));
    return {std::move(ranked.Ranks), std::move(ranked.Names)};
}

} // namespace

QStringList modStagedGroup::Shown()
{
    return {cText::Tr("Keine"), cText::Tr("Nach Empfänger"), cText::Tr("Nach Tag"), cText::Tr("Nach Vorschlag"),
            cText::Tr("Nach Kategorie")};
}

QString modStagedGroup::Stored(eGrouping grouping)
{
    return QString::fromUtf16(words.at(static_cast<std::size_t>(grouping)));
}

modStagedGroup::eGrouping modStagedGroup::FromStored(const QString& word)
{
    const auto found = std::find(words.begin(), words.end(), word);
    return found == words.end() ? eGrouping::Plan : static_cast<eGrouping>(found - words.begin());
}

modStagedGroup::cGroups modStagedGroup::Gather(const cImportEntryList& rows, const std::vector<int>& shown,
                                               eGrouping grouping, const cKnowledge& known)
{
    switch (grouping) {
    case eGrouping::Counterparty: return ByCounterparty(rows, shown);
    case eGrouping::Day: return ByDay(rows, shown);
    case eGrouping::Plan: return ByPlan(rows, shown, known);
    case eGrouping::Category: return ByCategory(rows, shown, known);
    case eGrouping::None: break;
    }
    return {};
}
