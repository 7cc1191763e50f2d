#include "model/cTemplateItem.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <QHash>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString separator = u"; "_s;

// Such an account could not be looked at alone.
bool MeansAll(const QString& account)
{
    return modTemplate::IsSameName(account, modWord::AlleKonten)
        || modTemplate::IsSameName(account, cText::Tr("Alle Konten"));
}

// The smallest position in each group: where the group stands as a whole.
QHash<QString, int> GroupPositions(const cTemplateItemList& items)
{
    QHash<QString, int> positions;
    for (const cTemplateItem& item : items) {
        const QString group = modTemplate::GroupOf(item);
        const int position = modTemplate::Priority(item);
        positions[group] = qMin(positions.value(group, position), position);
    }
    return positions;
}

} // namespace

bool modTemplate::IsAccount(const cTemplateItem& item)
{
    return item.TemplateType == modWord::Konto;
}

bool modTemplate::IsVisible(const cTemplateItem& item)
{
    return item.TemplateVisible.trimmed() != u"0";
}

int modTemplate::Priority(const cTemplateItem& item)
{
    return item.TemplatePriority.toInt();
}

qint64 modTemplate::DefaultValueCents(const cTemplateItem& item)
{
    return modAmount::CentsFromText(item.TemplateDefaultValue).value_or(0);
}

qint64 modTemplate::ProposedCents(const cTemplateItem& item)
{
    return modRecurrence::IsRecurring(item.EntryInterval) ? std::abs(DefaultValueCents(item)) : 0;
}

qint64 modTemplate::LimitCents(const cTemplateItem& item, qint64 months)
{
    constexpr int monthsOfYear = 12;
    if (item.EntryType == modWord::Einnahme) {
        return 0; // what usually comes in limits nothing
    }
    const qint64 times = modRecurrence::TimesAYear(item.EntryInterval);
    const qint64 value = std::abs(DefaultValueCents(item)) * months;
    return times == 0 ? value : (value * times + monthsOfYear / 2) / monthsOfYear;
}

std::optional<qint64> modTemplate::VatRate(const cTemplateItem& item)
{
    const std::optional<qint64> rate = modAmount::CentsFromText(item.TemplateVAT);
    return rate && *rate >= 0 ? rate : std::nullopt;
}

QString modTemplate::VatText(qint64 rate)
{
    QString text = modAmount::CentsToText(rate);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

qint64 modTemplate::VatCents(qint64 cents, qint64 rate)
{
    const qint64 whole = 10'000 + rate;
    return (2 * cents * rate + whole) / (2 * whole);
}

QString modTemplate::CleanName(const QString& name)
{
    QString kept;
    for (const QChar c : name) {
        if (!u"&'<>\";"_s.contains(c)) {
            kept.append(c);
        }
    }
    return kept;
}

QString modTemplate::TypedName(const QString& name)
{
    return CleanName(name.trimmed()).trimmed();
}

bool modTemplate::IsSameName(const QString& a, const QString& b)
{
    return a.simplified().compare(b.simplified(), Qt::CaseInsensitive) == 0;
}

QString modTemplate::NameOf(const cTemplateItem& item)
{
    return IsAccount(item) ? item.TemplateName : Path(item);
}

bool modTemplate::IsTaken(const cTemplateItemList& items, const cTemplateItem& named)
{
    const QString name = NameOf(named);
    return (IsAccount(named) && MeansAll(name))
        || std::any_of(items.begin(), items.end(), [&](const cTemplateItem& other) {
               return other.ID != named.ID && IsAccount(other) == IsAccount(named) && IsSameName(NameOf(other), name);
           });
}

QString modTemplate::AccountLike(const cTemplateItemList& accounts, const QString& name)
{
    const auto find = [&](const auto& is) { return std::find_if(accounts.begin(), accounts.end(), is); };
    const auto exact = find([&](const cTemplateItem& account) { return account.TemplateName == name; });
    const auto like = exact != accounts.end()
        ? exact
        : find([&](const cTemplateItem& account) { return IsSameName(account.TemplateName, name); });
    return like == accounts.end() ? QString() : like->TemplateName;
}

QString modTemplate::Path(const cTemplateItem& item)
{
    if (item.TemplateCategory.isEmpty() && item.TemplateName.isEmpty()) {
        return NoPath;
    }
    if (item.TemplateCategory.isEmpty()) {
        return u"Sonstiges"_s + separator + item.TemplateName;
    }
    if (item.TemplateName.isEmpty()) {
        return item.TemplateCategory;
    }
    return item.TemplateCategory + separator + item.TemplateName;
}

QString modTemplate::MainOf(const QString& path)
{
    return path.section(separator, 0, 0);
}

QString modTemplate::SubOf(const QString& path)
{
    return path.section(separator, 1);
}

QString modTemplate::Join(const QString& main, const QString& sub)
{
    return sub.isEmpty() ? main : QString(main + separator + sub);
}

bool modTemplate::IsWithin(const QString& path, const QString& category)
{
    return path == category || path.startsWith(category + separator);
}

QString modTemplate::WithMain(const QString& path, const QString& main)
{
    return Join(main, SubOf(path));
}

QString modTemplate::GroupOf(const cTemplateItem& item)
{
    return IsAccount(item) ? item.TemplateCategory : MainOf(Path(item));
}

cTemplateItemList modTemplate::InOrder(cTemplateItemList items)
{
    const QHash<QString, int> positions = GroupPositions(items);
    std::stable_sort(items.begin(), items.end(), [&](const cTemplateItem& a, const cTemplateItem& b) {
        const QString groupA = GroupOf(a);
        const QString groupB = GroupOf(b);
        if (groupA != groupB) {
            const int left = positions.value(groupA);
            const int right = positions.value(groupB);
            return left != right ? left < right : groupA.localeAwareCompare(groupB) < 0;
        }
        if (a.TemplateName.isEmpty() != b.TemplateName.isEmpty()) {
            return a.TemplateName.isEmpty();
        }
        return Priority(a) != Priority(b) ? Priority(a) < Priority(b)
                                          : a.TemplateName.localeAwareCompare(b.TemplateName) < 0;
    });
    return items;
}

QStringList modTemplate::AccountNames(const cTemplateItemList& items)
{
    QStringList names;
    const cTemplateItemList ordered = InOrder(items);
    for (const cTemplateItem& item : ordered) {
        if (IsAccount(item)) {
            names.append(item.TemplateName);
        }
    }
    return names;
}

QStringList modTemplate::Paths(const cTemplateItemList& items)
{
    QStringList paths;
    const cTemplateItemList ordered = InOrder(items);
    for (const cTemplateItem& item : ordered) {
        if (!IsAccount(item)) {
            paths.append(Path(item));
        }
    }
    return paths;
}

QStringList modTemplate::WithMains(const QStringList& paths)
{
    QStringList all;
    for (const QString& path : paths) {
        all.append({MainOf(path), path});
    }
    all.removeDuplicates();
    return all;
}

int modTemplate::LastPriority(const cTemplateItemList& items, const QString& type, const QString& group)
{
    int last = 0;
    int lastOfGroup = -1;
    for (const cTemplateItem& item : items) {
        if (item.TemplateType != type) {
            continue;
        }
        last = std::max(last, Priority(item));
        if (GroupOf(item) == group) {
            lastOfGroup = std::max(lastOfGroup, Priority(item));
        }
    }
    return lastOfGroup >= 0 ? lastOfGroup : last;
}

cTemplateItem modTemplate::NewCategory(const cTemplateItemList& items, const QString& main, const QString& sub)
{
    cTemplateItem item;
    item.TemplateType = modWord::Kategorie;
    item.TemplateCategory = TypedName(main);
    item.TemplateName = TypedName(sub);
    const QString group = GroupOf(item);
    const cTemplateItemList ordered = InOrder(items);
    const auto neighbour = std::find_if(ordered.begin(), ordered.end(), [&](const cTemplateItem& other) {
        return !IsAccount(other) && GroupOf(other) == group;
    });
    item.EntryType = neighbour == ordered.end() ? modWord::Ausgabe : neighbour->EntryType;
    item.EntryInterval = modWord::Einmalig;
    item.TemplatePriority = QString::number(LastPriority(items, modWord::Kategorie, group) + 1);
    return item;
}

cTemplateItem modTemplate::NewAccount(const cTemplateItemList& accounts, const QString& name)
{
    QHash<QString, int> counts;
    for (const cTemplateItem& account : accounts) {
        ++counts[GroupOf(account)];
    }
    const auto most = std::max_element(accounts.begin(), accounts.end(), [&](const auto& a, const auto& b) {
        return counts.value(GroupOf(a)) < counts.value(GroupOf(b));
    });
    cTemplateItem item;
    item.TemplateType = modWord::Konto;
    item.TemplateName = MeansAll(CleanName(name)) ? QString() : CleanName(name.trimmed()).trimmed();
    item.TemplateCategory = most == accounts.end() ? QString() : GroupOf(*most);
    item.TemplatePriority = QString::number(LastPriority(accounts, modWord::Konto, item.TemplateCategory) + 1);
    return item;
}
