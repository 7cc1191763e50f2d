#include "views/list/cEntryListModel.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modPeople.h"
#include "model/modReceiptName.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modTag.h"
#include "model/modWord.h"
#include "views/list/cEntryFilter.h"
#include "views/list/cListFilter.h"
#include "views/list/modColumnWidth.h"
#include "views/list/modEntryOrder.h"
#include "views/list/modTagTyping.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

// Ids of rows inside a group are spread, because views hash row and id into one number.
constexpr quintptr idStep = 16;

constexpr std::array<const char*, cEntryListModel::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Datum"),        QT_TRANSLATE_NOOP("cText", "Buchungsart"),
    QT_TRANSLATE_NOOP("cText", "Kategorie"),    QT_TRANSLATE_NOOP("cText", "Konto"),
    QT_TRANSLATE_NOOP("cText", "Beschreibung"), QT_TRANSLATE_NOOP("cText", "Intervall"),
    QT_TRANSLATE_NOOP("cText", "Betrag"),       QT_TRANSLATE_NOOP("cText", "Saldo"),
    QT_TRANSLATE_NOOP("cText", "Beleg"),        QT_TRANSLATE_NOOP("cText", "Schlagwörter"),
    QT_TRANSLATE_NOOP("cText", "Bezahlt von"),
};

// Nothing at all where there is none, so that nobody has to hear it.
QVariant ReceiptText(const cEntryItem& entry)
{
    const int count = modReceiptName::Count(entry);
    return count == 0 ? QVariant() : QVariant(modCount::Receipts(count));
}

bool IsMoneyColumn(int column)
{
    return column == cEntryListModel::Amount || column == cEntryListModel::Balance;
}

// Whose cells hold a few words, the same ones in many rows.
bool IsWordColumn(int column)
{
    return column == cEntryListModel::Category || column == cEntryListModel::Account
        || column == cEntryListModel::Interval;
}

// How long such a text is, more or less and without making it.
qsizetype Letters(const cEntryItem& entry, int column)
{
    constexpr qsizetype mark = 11; // ", korrigiert"
    switch (column) {
    case cEntryListModel::Category: return entry.EntryCategory.size();
    case cEntryListModel::Account: return entry.EntryAccount.size() + entry.EntryAccountMove.size();
    default:
        return entry.EntryInterval.size() + (entry.IsCorrected ? mark : 0) + (entry.PlannedDate.isValid() ? mark : 0)
            + (entry.EntryFlags.isEmpty() ? 0 : mark / 2);
    }
}

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

cEntryListModel::cEntryListModel(const cAmountFormat& format, QObject* parent)
    : QAbstractItemModel(parent),
      m_format(format)
{
}

cEntryListModel::~cEntryListModel() = default;

void cEntryListModel::SetContent(cContent content, const QString& filter, const QString& grouping)
{
    beginResetModel();
    m_filter.reset();
    m_content = std::move(content);
    m_words = modFold::Words(filter);
    m_grouping = grouping;
    RunBalances();
    Order();
    Select(m_all);
    endResetModel();
}

void cEntryListModel::SetFilter(const QString& text)
{
    const QList<modFold::cFolded> words = modFold::Words(text);
    if (words == m_words) {
        return;
    }
    beginResetModel();
    const bool isNarrower = cListFilter::IsNarrower(words, m_words);
    m_words = words;
    Select(isNarrower ? m_order : m_all);
    endResetModel();
}

void cEntryListModel::SetGrouping(const QString& grouping)
{
    beginResetModel();
    m_grouping = grouping;
    Order();
    Select(m_all);
    endResetModel();
}

void cEntryListModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    Order();
    Select(m_all);
    endResetModel();
}

void cEntryListModel::Order()
{
    m_all.clear();
    for (int i = 0; i < static_cast<int>(m_content.Entries.size()); ++i) {
        if (m_content.HiddenCategory.isEmpty() || m_content.Entries.at(i).EntryCategory != m_content.HiddenCategory) {
            m_all.push_back(i);
        }
    }
    modEntryOrder::cRanked groups = modEntryOrder::Groups(m_content.Entries, m_all, m_grouping);
    const std::vector<qint64> keys = SortKeys();
    std::vector<int> positions(m_all.size());
    std::iota(positions.begin(), positions.end(), 0);
    const bool isUp = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(positions.begin(), positions.end(), [&](int a, int b) {
        if (!groups.Ranks.empty() && groups.Ranks[At(a)] != groups.Ranks[At(b)]) {
            return groups.Ranks[At(a)] < groups.Ranks[At(b)];
        }
        return isUp ? keys[At(a)] < keys[At(b)] : keys[At(b)] < keys[At(a)];
    });
    m_groupOf.assign(groups.Ranks.empty() ? 0 : At(static_cast<int>(m_content.Entries.size())), 0);
    m_groupNames = std::move(groups.Names);
    for (int& position : positions) {
        const int entry = m_all[At(position)];
        if (!groups.Ranks.empty()) {
            m_groupOf[At(entry)] = static_cast<int>(groups.Ranks[At(position)]);
        }
        position = entry;
    }
    m_all = std::move(positions);
}

void cEntryListModel::Select(const std::vector<int>& among)
{
    if (m_words.isEmpty()) {
        m_order = among;
    } else {
        if (!m_filter) {
            m_filter = std::make_unique<cEntryFilter>(m_content.Entries, m_format);
        }
        m_order = m_filter->Find(m_words, among, [this](int entry) {
            return cEntryFilter::ShownCents(m_content.Entries.at(entry), m_content.Account);
        });
    }
    Sum();
}

void cEntryListModel::Sum()
{
    m_groups.clear();
    m_sums = {};
    int group = -1;
    for (int position = 0; position < static_cast<int>(m_order.size()); ++position) {
        const int entry = m_order[At(position)];
        const qint64 effect = Effect(entry);
        modEntrySums::Add(m_sums, m_content.Entries.at(entry), effect);
        if (m_groupOf.empty()) {
            continue;
        }
        if (m_groupOf[At(entry)] != group) {
            group = m_groupOf[At(entry)];
            const QString& name = m_groupNames.at(group);
            m_groups.push_back({name.isEmpty() ? cText::Tr("Keine Angabe") : name, position, 0, 0});
        }
        ++m_groups.back().Count;
        m_groups.back().Sum += effect;
    }
}

void cEntryListModel::RunBalances()
{
    m_balances.clear();
    if (!m_content.StartBalance) {
        return;
    }
    std::vector<int> byDay(At(static_cast<int>(m_content.Entries.size())));
    std::iota(byDay.begin(), byDay.end(), 0);
    std::stable_sort(byDay.begin(), byDay.end(), [&](int a, int b) {
        return m_content.Entries.at(a).EntryDate < m_content.Entries.at(b).EntryDate;
    });
    m_balances.resize(byDay.size());
    qint64 balance = *m_content.StartBalance;
    for (const int entry : byDay) {
        balance += Effect(entry);
        m_balances[At(entry)] = balance;
    }
}

QStringList cEntryListModel::KnownTags() const
{
    QStringList texts;
    for (const cEntryItem& entry : m_content.Entries) {
        if (entry.EntryDescription.contains(u'#')) {
            texts.append(entry.EntryDescription);
        }
    }
    texts.removeDuplicates();
    return modTagTyping::Known(texts);
}

std::vector<qint64> cEntryListModel::SortKeys() const
{
    const int count = static_cast<int>(m_all.size());
    if (m_sortColumn == Date || IsMoneyColumn(m_sortColumn)) {
        std::vector<qint64> keys;
        keys.reserve(m_all.size());
        for (const int entry : m_all) {
            keys.push_back(m_sortColumn == Amount ? Effect(entry)
                                                  : m_content.Entries.at(entry).EntryDate.toJulianDay());
        }
        return keys;
    }
    return modEntryOrder::Rank(count, [&](int i) { return Text(m_all[At(i)], m_sortColumn); }).Ranks;
}

qint64 cEntryListModel::Effect(int entry) const
{
    return modBalance::Effect(m_content.Entries.at(entry), m_content.Account);
}

const cEntryItem* cEntryListModel::EntryAt(const QModelIndex& index) const
{
    const int entry = EntryIndex(index);
    return entry < 0 ? nullptr : &m_content.Entries.at(entry);
}

cEntryListModel::cKey cEntryListModel::KeyAt(const QModelIndex& index) const
{
    const cEntryItem* entry = EntryAt(index);
    return entry == nullptr ? cKey{} : cKey{entry->ID, entry->Planned()};
}

QModelIndexList cEntryListModel::IndexesOf(const QList<cKey>& keys) const
{
    QModelIndexList found;
    if (keys.isEmpty()) {
        return found;
    }
    QMultiHash<int, QDate> wanted;
    for (const cKey& key : keys) {
        wanted.insert(key.ID, key.Day);
    }
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        const cEntryItem& entry = m_content.Entries.at(m_order[i]);
        if (wanted.contains(entry.ID, entry.Planned())) {
            found.append(IndexAt(i));
        }
    }
    return found;
}

QModelIndex cEntryListModel::IndexAt(std::size_t position) const
{
    const int row = static_cast<int>(position);
    if (m_groups.empty()) {
        return index(row, 0);
    }
    const auto after = std::upper_bound(m_groups.begin(), m_groups.end(), row,
                                        [](int at, const cGroup& group) { return at < group.First; });
    const int group = static_cast<int>(after - m_groups.begin()) - 1;
    return index(row - m_groups[At(group)].First, 0, index(group, 0));
}

QModelIndex cEntryListModel::IndexNearest(QDate day) const
{
    const auto distance = [&](int entry) {
        return std::abs(m_content.Entries.at(entry).EntryDate.toJulianDay() - day.toJulianDay());
    };
    const auto found =
        std::min_element(m_order.begin(), m_order.end(), [&](int a, int b) { return distance(a) < distance(b); });
    return found == m_order.end() ? QModelIndex() : IndexAt(static_cast<std::size_t>(found - m_order.begin()));
}

QString cEntryListModel::GroupCategory(const QModelIndex& index) const
{
    const bool isHead = EntryAt(index) == nullptr;
    const cEntryItem* entry = EntryAt(isHead && index.isValid() ? this->index(0, 0, index.siblingAtColumn(0)) : index);
    const bool isCategory = IsGrouped() && m_grouping == modWord::NachKategorie && entry != nullptr;
    return isCategory && entry->EntryCategory != modWord::Startguthaben ? entry->EntryCategory : QString();
}

Qt::ItemFlags cEntryListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (EntryIndex(index) < 0) {
        return flags;
    }
    const bool isEditable = index.column() == Category || index.column() == Description || index.column() == Amount;
    return flags | Qt::ItemIsDragEnabled | (isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

QModelIndex cEntryListModel::IndexNear(QDate day) const
{
    if (m_sortColumn != Date || !m_groups.empty()) {
        return {};
    }
    const bool isUp = m_sortOrder == Qt::AscendingOrder;
    const auto found = std::find_if(m_order.begin(), m_order.end(), [&](int entry) {
        const QDate own = m_content.Entries.at(entry).EntryDate;
        return isUp ? own >= day : own <= day;
    });
    return found == m_order.end() ? QModelIndex() : index(static_cast<int>(found - m_order.begin()), 0);
}

QModelIndex cEntryListModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || row >= rowCount(parent) || column >= ColumnCount) {
        return {};
    }
    const quintptr id = parent.isValid() ? (static_cast<quintptr>(m_groups[At(parent.row())].First) + 1) * idStep : 0;
    return createIndex(row, column, id);
}

QModelIndex cEntryListModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == 0) {
        return {};
    }
    const int first = static_cast<int>(child.internalId() / idStep) - 1;
    const auto group = std::lower_bound(m_groups.begin(), m_groups.end(), first,
                                        [](const cGroup& each, int position) { return each.First < position; });
    return createIndex(static_cast<int>(group - m_groups.begin()), 0, quintptr(0));
}

int cEntryListModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(m_groups.empty() ? m_order.size() : m_groups.size());
    }
    const bool isGroup = parent.internalId() == 0 && parent.column() == 0 && !m_groups.empty();
    return isGroup ? m_groups[At(parent.row())].Count : 0;
}

int cEntryListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

int cEntryListModel::EntryIndex(const QModelIndex& index) const
{
    if (!index.isValid() || (index.internalId() == 0 && !m_groups.empty())) {
        return -1;
    }
    const int first = index.internalId() == 0 ? 0 : static_cast<int>(index.internalId() / idStep) - 1;
    return m_order[At(first + index.row())];
}

QVariant cEntryListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return IsMoneyColumn(index.column()) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    const int entry = EntryIndex(index);
    return entry < 0 ? GroupData(m_groups[At(index.row())], index.column(), role)
                     : EntryData(entry, index.column(), role);
}

QVariant cEntryListModel::EntryData(int entry, int column, int role) const
{
    const cEntryItem& item = m_content.Entries.at(entry);
    switch (role) {
    case Qt::DisplayRole: return Text(entry, column);
    case Qt::ToolTipRole: return column == Receipts ? ReceiptText(item) : QVariant(Tip(item));
    case FutureRole: return item.EntryDate > m_content.Today;
    case CorrectedRole: return item.IsCorrected;
    case ReceiptsRole: return column == Receipts ? modReceiptName::Count(item) : 0;
    case Qt::AccessibleTextRole: return column == Receipts ? ReceiptText(item) : QVariant();
    case cCategoryLooks::Role: return column == Category ? m_content.Looks.Shown(item.EntryCategory) : QVariant();
    case CentsRole: {
        const std::optional<qint64> cents = Cents(entry, column);
        return cents ? QVariant(*cents) : QVariant();
    }
    case ToneRole: return QVariant::fromValue(Tone(entry, column));
    default: return {};
    }
}

eMoneyTone cEntryListModel::Tone(int entry, int column) const
{
    if (column == Balance) {
        return modMoneyTone::OfBalance(m_balances.empty() ? 0 : m_balances[At(entry)]);
    }
    const QString& type = m_content.Entries.at(entry).EntryType;
    return type == modWord::Umbuchung ? eMoneyTone::Neutral
        : type == modWord::Einnahme   ? eMoneyTone::Income
                                      : eMoneyTone::Expense;
}

QVariant cEntryListModel::GroupData(const cGroup& group, int column, int role) const
{
    if (role == GroupRole) {
        return true;
    }
    if (role == ToneRole) {
        return QVariant::fromValue(modMoneyTone::Of(group.Sum));
    }
    if (role == NameRole) {
        return group.Name;
    }
    if (role == CentsRole) {
        return column == Amount ? QVariant(group.Sum) : QVariant();
    }
    if (role == cCategoryLooks::Role) {
        const bool isOfCategory = m_grouping == modWord::NachKategorie || m_grouping == modWord::NachSparte;
        const cEntryItem& first = m_content.Entries.at(m_order[At(group.First)]);
        return isOfCategory ? m_content.Looks.Shown(first.EntryCategory) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (column == 0) {
        return u"%1  (%2)"_s.arg(group.Name).arg(group.Count);
    }
    return column == Amount ? m_format.Cents(group.Sum) : QVariant();
}

QString cEntryListModel::Text(int entry, int column) const
{
    const cEntryItem& item = m_content.Entries.at(entry);
    switch (column) {
    case Date: return modDate::ToText(item.EntryDate);
    case Type: return modWord::EntryTypes().ToShown(item.EntryType);
    case Category: return item.EntryCategory;
    case Account: return item.Accounts();
    case Description: return item.EntryDescription;
    case Payer: return modPeople::Payer(item);
    case Tags: return modTag::Of(item.EntryDescription).join(u' ');
    case Interval: {
        const QString interval = modWord::Intervals().ToShown(item.EntryInterval);
        const QString split = modSplit::Group(item) == 0 ? interval : cText::Tr("{0}, Teil", {interval});
        const QString corrected = item.IsCorrected ? cText::Tr("{0}, korrigiert", {split}) : split;
        return modSeries::IsMoved(item) ? cText::Tr("{0}, verschoben", {corrected}) : corrected;
    }
    case Receipts: {
        const int count = modReceiptName::Count(item);
        return count == 0 ? QString() : QString::number(count);
    }
    case Amount:
    case Balance: {
        const std::optional<qint64> cents = Cents(entry, column);
        return cents ? m_format.Cents(*cents) : QString();
    }
    default: return {};
    }
}

std::optional<qint64> cEntryListModel::Cents(int entry, int column) const
{
    if (column == Balance) {
        const bool isShown = !m_balances.empty() && m_sortColumn == Date;
        return isShown ? std::optional(m_balances[At(entry)]) : std::nullopt;
    }
    if (column != Amount) {
        return std::nullopt;
    }
    return cEntryFilter::ShownCents(m_content.Entries.at(entry), m_content.Account);
}

QString cEntryListModel::Tip(const cEntryItem& entry) const
{
    if (!entry.HasCorrection()) {
        const QString part = cText::Tr("Teil eines aufgeteilten Eintrags; zum Bearbeiten öffnen sich alle Teile.");
        return modSplit::Group(entry) == 0 ? entry.EntryDescription
                                           : QString(entry.EntryDescription + u'\n' + part).trimmed();
    }
    QStringList lines;
    if (entry.IsCorrected) {
        lines.append(cText::Tr("Betrag für diesen Zeitraum korrigiert."));
    }
    if (entry.PlannedDate.isValid()) {
        lines.append(cText::Tr("Verschoben; geplant war der {0}.", {modDate::ToText(entry.PlannedDate)}));
    }
    if (!entry.CorrectionComment.isEmpty()) {
        lines.append(entry.CorrectionComment);
    }
    return lines.join(u'\n');
}

QString cEntryListModel::WidestAmount(int column) const
{
    qint64 least = 0;
    qint64 most = 0;
    for (const int entry : m_order) {
        const qint64 cents = Cents(entry, column).value_or(0);
        least = std::min(least, cents);
        most = std::max(most, cents);
    }
    const QString negative = m_format.Cents(least);
    const QString positive = m_format.Cents(most);
    return negative.size() > positive.size() ? negative : positive;
}

QString cEntryListModel::LongestText(int column) const
{
    int longest = -1;
    qsizetype most = 0;
    for (const int entry : m_order) {
        const qsizetype letters = Letters(m_content.Entries.at(entry), column);
        if (letters > most) {
            most = letters;
            longest = entry;
        }
    }
    return longest < 0 ? QString() : Text(longest, column);
}

QVariant cEntryListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return IsMoneyColumn(section) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                      : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role == modColumnWidth::WidestRole) {
        return IsMoneyColumn(section) ? QVariant(WidestAmount(section))
            : IsWordColumn(section)   ? QVariant(LongestText(section))
                                      : QVariant();
    }
    return role == Qt::DisplayRole ? QVariant(cText::Tr(titles[At(section)])) : QVariant();
}
