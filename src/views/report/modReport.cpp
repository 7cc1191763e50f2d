#include "views/report/modReport.h"

#include "base/cText.h"
#include "model/modTag.h"
#include "model/modWord.h"
#include "views/budget/modLimits.h"

#include <QCollator>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// An open side of a period as a report shows it.
const QDate earliest(1001, 1, 1);
const QDate latest(9999, 12, 31);

struct cType
{
    eReport Type;
    const char* Name; // German
    QString ShortName;
};

const std::array<cType, 5>& Types()
{
    static const std::array<cType, 5> types{
        cType{eReport::Average, QT_TRANSLATE_NOOP("cText", "Durchschnittswerte"), u"durchschnitt"_s},
        cType{eReport::Sum, QT_TRANSLATE_NOOP("cText", "Summe aller Werte"), u"summe"_s},
        cType{eReport::Limit, QT_TRANSLATE_NOOP("cText", "Monatslimit"), u"limit"_s},
        cType{eReport::Budget, QT_TRANSLATE_NOOP("cText", "Budget"), u"budget"_s},
        cType{eReport::Tag, QT_TRANSLATE_NOOP("cText", "Schlagwörter"), u"schlagwort"_s},
    };
    return types;
}

const cType& TypeOf(eReport type)
{
    return Types()[static_cast<std::size_t>(type)];
}

// The two halves of a category path.
struct cPath
{
    QString Group;
    QString Category;
    bool operator==(const cPath&) const = default;
};

std::size_t qHash(const cPath& path, std::size_t seed = 0)
{
    return qHashMulti(seed, path.Group, path.Category);
}

cPath Split(const QString& path)
{
    return {path.isEmpty() ? modTemplate::NoPath : modTemplate::MainOf(path), modTemplate::SubOf(path)};
}

// An item is an entry, or the sum of some.
template <typename tItem>
bool Counts(const tItem& item, const cReportWish& wish)
{
    const bool withStart = wish.Type == eReport::Sum && wish.ShowsStart;
    return modBudget::Counts(item.EntryType, item.EntryCategory) || (withStart && item.EntryType != modWord::Umbuchung);
}

template <typename tItem>
eReportKind KindOf(const tItem& item)
{
    return item.EntryType == modWord::Einnahme ? eReportKind::Income : eReportKind::Expense;
}

// The limits of the categories that have one in the counted months.
QHash<cPath, cLimit> Limits(const cLimits& limits, const cReportBasis& basis)
{
    QHash<cPath, cLimit> found;
    const QStringList paths = limits.Paths();
    for (const QString& path : paths) {
        if (const std::optional<cLimit> limit = limits.Of(path, basis.FirstMonth, basis.Months)) {
            found.insert(Split(path), *limit);
        }
    }
    return found;
}

// The groups that an item counts in when tags are the groups; the category stands whole below each of them.
template <typename tItem>
QStringList TagsOf(const tItem& item)
{
    QStringList tags = modTag::Of(item.EntryDescription);
    return tags.isEmpty() ? QStringList{modReport::NoTag} : tags;
}

template <typename tItem>
cPath TagPath(const QString& tag, const tItem& item)
{
    return {modTag::Key(tag), item.EntryCategory.isEmpty() ? modTemplate::NoPath : item.EntryCategory};
}

// What lies on one category.
struct cTotal
{
    qint64 Cents = 0;
    int Entries = 0;
};

cTotal TotalOf(const cEntryItem& entry)
{
    return {entry.EntryValue, 1};
}

cTotal TotalOf(const cCategorySum& sum)
{
    return {sum.Cents, sum.Entries};
}

modPeriod::cRange DaysOf(const cEntryItem& entry)
{
    return {entry.EntryDate, entry.EntryDate};
}

modPeriod::cRange DaysOf(const cCategorySum& sum)
{
    return {sum.First, sum.Last};
}

struct cSlot
{
    cPath Path;
    cTotal Income{};
    cTotal Expense{};
    std::optional<cLimit> Limit{}; // for the whole period; none without one
};

// Totals by category, filled in one pass over the items.
class cSlots
{
public:
    template <typename tItem>
    void Add(const tItem& item)
    {
        Add(item, m_slots[Find(item.EntryCategory)]);
        Add(item, m_whole);
    }

    // An entry counts in each of its tags, and once in the whole.
    template <typename tItem>
    void AddByTag(const tItem& item)
    {
        const QStringList tags = TagsOf(item);
        for (const QString& tag : tags) {
            const cPath path = TagPath(tag, item);
            Add(item, m_slots[Find(path)]);
            if (!m_labels.contains(path.Group)) {
                m_labels.insert(path.Group, tag);
            }
        }
        Add(item, m_whole);
    }

    void AddLimits(const QHash<cPath, cLimit>& limits)
    {
        for (auto limit = limits.begin(); limit != limits.end(); ++limit) {
            m_slots[Find(limit.key())].Limit = *limit;
        }
    }

    [[nodiscard]] const std::vector<cSlot>& All() const { return m_slots; }
    [[nodiscard]] const cSlot& Whole() const { return m_whole; } // every entry once
    [[nodiscard]] const QHash<QString, QString>& Labels() const { return m_labels; }

private:
    template <typename tItem>
    static void Add(const tItem& item, cSlot& slot)
    {
        const cTotal added = TotalOf(item);
        cTotal& total = KindOf(item) == eReportKind::Income ? slot.Income : slot.Expense;
        total.Cents += added.Cents;
        total.Entries += added.Entries;
    }

    // Different texts may stand for the same category: none, and the word for none.
    std::size_t Find(const QString& text)
    {
        const auto known = m_byText.constFind(text);
        if (known != m_byText.constEnd()) {
            return *known;
        }
        const std::size_t slot = Find(Split(text));
        m_byText.insert(text, slot);
        return slot;
    }

    std::size_t Find(const cPath& path)
    {
        const std::size_t slot = m_byPath.value(path, m_slots.size());
        if (slot == m_slots.size()) {
            m_slots.push_back({path});
            m_byPath.insert(path, slot);
        }
        return slot;
    }

    std::vector<cSlot> m_slots;
    QHash<QString, std::size_t> m_byText;
    QHash<cPath, std::size_t> m_byPath;
    QHash<QString, QString> m_labels; // tags by their keys, as they were written first
    cSlot m_whole;
};

QString GroupLabel(const QString& group)
{
    if (group.isEmpty()) {
        return cText::Tr("Sonstiges");
    }
    return group == modTemplate::NoPath ? cText::Tr("Keine Angabe") : group;
}

QString CategoryLabel(const cPath& path)
{
    if (path.Category.isEmpty()) {
        return cText::Tr("Sonstiges ({0})", {GroupLabel(path.Group)});
    }
    return path.Group.isEmpty() ? path.Category : QString(path.Category + u" ("_s + path.Group + u')');
}

// Puts the lines of a section together.
class cSectionBuilder
{
public:
    cSectionBuilder(eReportKind kind, const cReportBasis& basis, eReport type) : m_basis(basis), m_type(type)
    {
        m_section.Kind = kind;
        m_collator.setNumericMode(true);
    }

    void Add(const cPath& path, const cTotal& total, const cLimit& limit)
    {
        cReportAmount amount;
        amount.Sum = total.Cents;
        amount.Limit = limit.Total();
        amount.Carried = limit.Carried;
        amount.Entries = total.Entries;
        cReportGroup& group = Group(path.Group);
        const QString label = m_type == eReport::Tag ? ShownCategory(path.Category) : CategoryLabel(path);
        group.Categories.append({path.Category, label, amount});
        Sum(group.Amount, amount);
        Sum(m_section.Amount, amount);
    }

    // Where the lines are no parts of one whole.
    void SetTags(const QHash<QString, QString>& labels, const cTotal& whole)
    {
        m_section.Amount = {.Sum = whole.Cents, .Entries = whole.Entries};
        for (cReportGroup& group : m_section.Groups) {
            const bool isNone = group.Name == modReport::NoTag;
            group.Label = isNone ? cText::Tr("ohne Schlagwort") : labels.value(group.Name);
        }
    }

    [[nodiscard]] cReportSection Take(eReportOrder order)
    {
        Finish(m_section.Amount);
        for (cReportGroup& group : m_section.Groups) {
            Finish(group.Amount);
            for (cReportCategory& category : group.Categories) {
                Finish(category.Amount);
            }
            Sort(group.Categories, order, [](const cReportCategory& category) {
                return category.Name.isEmpty() ? cText::Tr("Sonstiges") : category.Name;
            });
        }
        Sort(m_section.Groups, order, [](const cReportGroup& group) { return group.Label; });
        return std::move(m_section);
    }

private:
    static QString ShownCategory(const QString& path)
    {
        return path == modTemplate::NoPath ? cText::Tr("Keine Angabe") : path;
    }

    cReportGroup& Group(const QString& name)
    {
        const auto known = m_groups.constFind(name);
        if (known != m_groups.constEnd()) {
            return m_section.Groups[*known];
        }
        m_groups.insert(name, m_section.Groups.size());
        m_section.Groups.append({name, GroupLabel(name), {}});
        return m_section.Groups.last();
    }

    static void Sum(cReportAmount& whole, const cReportAmount& part)
    {
        whole.Sum += part.Sum;
        whole.Limit += part.Limit;
        whole.Carried += part.Carried;
        whole.Entries += part.Entries;
    }

    // Each line is the average of its own sum: a total made of rounded averages would drift away from the truth.
    void Finish(cReportAmount& amount) const
    {
        amount.Cents = m_type == eReport::Average ? modReport::PerMonth(amount.Sum, m_basis) : amount.Sum;
    }

    template <typename tLine, typename tName>
    void Sort(QList<tLine>& lines, eReportOrder order, tName name) const
    {
        std::sort(lines.begin(), lines.end(), [&](const tLine& a, const tLine& b) {
            if ((a.Name == modReport::NoTag) != (b.Name == modReport::NoTag)) {
                return b.Name == modReport::NoTag; // what has no tag comes last
            }
            if (order == eReportOrder::ByAmount && a.Amount.Cents != b.Amount.Cents) {
                return a.Amount.Cents > b.Amount.Cents;
            }
            const int compared = m_collator.compare(name(a), name(b));
            return compared != 0 ? compared < 0 : a.Name < b.Name;
        });
    }

    const cReportBasis& m_basis;
    eReport m_type;
    QCollator m_collator{QLocale(QLocale::German, QLocale::Germany)};
    cReportSection m_section;
    QHash<QString, qsizetype> m_groups;
};

cTotal Spent(const cSlot& slot, eReportSpending spending)
{
    if (spending == eReportSpending::Gross) {
        return slot.Expense;
    }
    return {slot.Expense.Cents - slot.Income.Cents, slot.Expense.Entries + slot.Income.Entries};
}

void AddSlot(const cSlot& slot, cSectionBuilder& income, cSectionBuilder& expense)
{
    if (slot.Income.Entries > 0) {
        income.Add(slot.Path, slot.Income, {});
    }
    if (slot.Expense.Entries > 0) {
        expense.Add(slot.Path, slot.Expense, {});
    }
}

bool IsBelow(const cPath& path, const cReportNode& node)
{
    return (!node.Group || *node.Group == path.Group) && (!node.Category || *node.Category == path.Category);
}

bool IsBelowTag(const cEntryItem& entry, const cReportNode& node)
{
    const QStringList tags = TagsOf(entry);
    return std::any_of(tags.begin(), tags.end(),
                       [&](const QString& tag) { return IsBelow(TagPath(tag, entry), node); });
}

// From the first to the last month, both included.
int MonthsBetween(QDate first, QDate last)
{
    return std::abs((last.year() - first.year()) * 12 + last.month() - first.month()) + 1;
}

// From the first to the last day of the years, so that a single common year has 364 and not 365: as many steps as a
// period's days are counted, and the two have to fit each other.
qint64 DaysOfYears(QDate first, QDate last)
{
    return QDate(first.year(), 1, 1).daysTo(QDate(last.year(), 12, 31));
}

// The days that count. Where the period is open, these are whole months, from that of the first entry on and up to that
// of the last one: what comes once a month would otherwise come once more than there are months between its days.
template <typename tItem>
modPeriod::cRange Counted(const cReportWish& wish, const cReportBasis& shown, const QList<tItem>& items)
{
    modPeriod::cRange counted{shown.Start, shown.End};
    QDate first;
    QDate last;
    for (const tItem& item : items) {
        if (const modPeriod::cRange days = DaysOf(item); days.Start.isValid() && Counts(item, wish)) {
            first = first.isValid() ? std::min(first, days.Start) : days.Start;
            last = std::max(last, days.End);
        }
    }
    if (!first.isValid()) {
        return counted;
    }
    if (!modReport::HasStart(wish.Range)) {
        counted.Start = modPeriod::Month(first, 0).Start;
    }
    if (!wish.Range.End.isValid()) {
        counted.End = modPeriod::Month(last, 0).End;
    }
    return counted;
}

template <typename tItem>
cReportBasis BasisOf(const cReportWish& wish, const QList<tItem>& items)
{
    cReportBasis basis;
    basis.Start = wish.Range.Start.isValid() ? wish.Range.Start : earliest;
    basis.End = wish.Range.End.isValid() ? wish.Range.End : latest;
    basis.YearBasis = DaysOfYears(basis.Start, basis.End);
    const modPeriod::cRange counted = Counted(wish, basis, items);
    basis.Days = std::max<qint64>(1, std::abs(counted.Start.daysTo(counted.End)));
    basis.DaysOfYears = DaysOfYears(counted.Start, counted.End);
    basis.Years = std::abs(counted.End.year() - counted.Start.year()) + 1;
    basis.Months = MonthsBetween(counted.Start, counted.End);
    basis.FirstMonth = modBudget::MonthOf(std::min(counted.Start, counted.End));
    return basis;
}

template <typename tItem>
cReportFigures FiguresOf(const QList<tItem>& items, const cLimits& limits, const cReportWish& wish)
{
    cReportFigures figures;
    figures.Type = wish.Type;
    figures.Account = wish.Account;
    figures.Basis = BasisOf(wish, items);
    cSlots totals;
    for (const tItem& item : items) {
        if (Counts(item, wish) && wish.Type == eReport::Tag) {
            totals.AddByTag(item);
        } else if (Counts(item, wish)) {
            totals.Add(item);
        }
    }
    cSectionBuilder income(eReportKind::Income, figures.Basis, wish.Type);
    cSectionBuilder expense(eReportKind::Expense, figures.Basis, wish.Type);
    if (modReport::HasLimits(wish.Type)) {
        totals.AddLimits(Limits(limits, figures.Basis));
    }
    for (const cSlot& slot : totals.All()) {
        if (!modReport::HasLimits(wish.Type)) {
            AddSlot(slot, income, expense);
        } else if (slot.Limit) {
            expense.Add(slot.Path, Spent(slot, wish.Spending), *slot.Limit);
        }
    }
    if (wish.Type == eReport::Tag) {
        income.SetTags(totals.Labels(), totals.Whole().Income);
        expense.SetTags(totals.Labels(), totals.Whole().Expense);
    }
    figures.Income = income.Take(wish.Order);
    figures.Expense = expense.Take(wish.Order);
    return figures;
}

} // namespace

cReportFigures modReport::Figures(const cEntryItemList& entries, const cLimits& limits, const cReportWish& wish)
{
    return FiguresOf(entries, limits, wish);
}

cReportFigures modReport::Figures(const QList<cCategorySum>& sums, const cLimits& limits, const cReportWish& wish)
{
    return FiguresOf(sums, limits, wish);
}

cReportBasis modReport::Basis(const cReportWish& wish, const QList<cCategorySum>& sums)
{
    return BasisOf(wish, sums);
}

bool modReport::HasStart(const modPeriod::cRange& range)
{
    constexpr int firstYear = 1900;
    return range.Start.isValid() && range.Start.year() >= firstYear;
}

cEntryItemList modReport::EntriesOf(const cEntryItemList& entries, const cReportWish& wish, const cReportNode& node,
                                    const cLimits& limits)
{
    const bool isLimit = HasLimits(wish.Type);
    const QHash<cPath, cLimit> limited = isLimit ? Limits(limits, BasisOf(wish, entries)) : QHash<cPath, cLimit>();
    const bool withRefunds = isLimit && wish.Spending == eReportSpending::Net;
    QHash<QString, bool> isBelow; // by category path as the entries have it
    cEntryItemList found;
    for (const cEntryItem& entry : entries) {
        if (!Counts(entry, wish) || (KindOf(entry) != node.Kind && !withRefunds)) {
            continue;
        }
        if (wish.Type == eReport::Tag) {
            if (IsBelowTag(entry, node)) {
                found.append(entry);
            }
            continue;
        }
        auto known = isBelow.constFind(entry.EntryCategory);
        if (known == isBelow.constEnd()) {
            const cPath path = Split(entry.EntryCategory);
            known = isBelow.insert(entry.EntryCategory, IsBelow(path, node) && (!isLimit || limited.contains(path)));
        }
        if (*known) {
            found.append(entry);
        }
    }
    return found;
}

std::optional<cReportNode> modReport::NodeOf(const cEntryItem& entry, const cReportWish& wish)
{
    if (!Counts(entry, wish)) {
        return std::nullopt;
    }
    const cPath path = Split(entry.EntryCategory);
    return cReportNode{KindOf(entry), path.Group, path.Category};
}

std::optional<qint64> modReport::LimitPercent(const cReportAmount& amount)
{
    return amount.Limit <= 0 ? std::nullopt : std::optional(qMax<qint64>(0, amount.Cents) * 100 / amount.Limit);
}

qint64 modReport::PerMonth(qint64 cents, const cReportBasis& basis)
{
    // The product is exact and the quotient rounded once, so that halves are seen as halves.
    return std::llround(static_cast<double>(cents) * static_cast<double>(basis.DaysOfYears)
                        / (12.0 * static_cast<double>(basis.Days) * basis.Years));
}

bool modReport::HasLimits(eReport type)
{
    return type == eReport::Limit || type == eReport::Budget;
}

qint64 modReport::Left(const cReportAmount& amount)
{
    return amount.Limit - amount.Cents;
}

QString modReport::Name(eReport type)
{
    return QString::fromUtf8(TypeOf(type).Name);
}

QString modReport::ShownName(eReport type)
{
    return cText::Tr(TypeOf(type).Name);
}

std::optional<eReport> modReport::TypeByName(const QString& name)
{
    for (const cType& type : Types()) {
        for (const QString& known : {type.ShortName, Name(type.Type), ShownName(type.Type)}) {
            if (name.compare(known, Qt::CaseInsensitive) == 0) {
                return type.Type;
            }
        }
    }
    return std::nullopt;
}

QString modReport::ShownKind(eReportKind kind)
{
    return kind == eReportKind::Income ? cText::Tr("Einnahmen") : cText::Tr("Ausgaben");
}

QString modReport::AmountTitle(eReport type)
{
    switch (type) {
    case eReport::Average: return cText::Tr("Durchschnitt pro Monat");
    case eReport::Sum:
    case eReport::Tag: return cText::Tr("Summe");
    case eReport::Limit:
    case eReport::Budget: return cText::Tr("Ausgegeben");
    }
    return {};
}

QString modReport::GroupTitle(eReport type)
{
    return type == eReport::Tag ? cText::Tr("Schlagwort") : cText::Tr("Sparte");
}

QString modReport::Note(eReport type)
{
    if (type == eReport::Budget) {
        return modLimits::SumNote();
    }
    return type == eReport::Tag
        ? cText::Tr("Ein Eintrag mit mehreren Schlagwörtern zählt bei jedem davon, in den Summen "
                    "der Einnahmen und Ausgaben nur einmal.")
        : QString();
}
