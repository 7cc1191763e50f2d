#include "views/cEntryListModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modWord.h"
#include "views/modEntryOrder.h"

#include <QHash>

#include <algorithm>
#include <array>
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
};

bool IsMoneyColumn(int column)
{
    return column == cEntryListModel::Amount || column == cEntryListModel::Balance;
}

QString AccountText(const cEntryItem& entry)
{
    return entry.EntryType == modWord::Umbuchung ? entry.EntryAccount + u" → " + entry.EntryAccountMove
                                                 : entry.EntryAccount;
}

modFold::cFolded Searched(const cEntryItem& entry, const QString& amount)
{
    const QString text = QStringList{modDate::ToGerman(entry.EntryDate),
                                     modWord::EntryTypes().ToShown(entry.EntryType),
                                     entry.EntryCategory,
                                     AccountText(entry),
                                     entry.EntryDescription,
                                     modWord::Intervals().ToShown(entry.EntryInterval),
                                     amount}
                             .join(u'\n');
    return modFold::Fold(text);
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
    m_content = std::move(content);
    m_words = modFold::Words(filter);
    m_grouping = grouping;
    RunBalances();
    Rebuild();
    endResetModel();
}

void cEntryListModel::SetFilter(const QString& text)
{
    beginResetModel();
    m_words = modFold::Words(text);
    Rebuild();
    endResetModel();
}

void cEntryListModel::SetGrouping(const QString& grouping)
{
    beginResetModel();
    m_grouping = grouping;
    Order();
    endResetModel();
}

void cEntryListModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    Order();
    endResetModel();
}

void cEntryListModel::Rebuild()
{
    Select();
    Order();
}

void cEntryListModel::Select()
{
    m_order.clear();
    m_sums = {};
    for (int i = 0; i < static_cast<int>(m_content.Entries.size()); ++i) {
        const cEntryItem& entry = m_content.Entries.at(i);
        const bool isHidden = !m_content.HiddenCategory.isEmpty() && entry.EntryCategory == m_content.HiddenCategory;
        if (isHidden || (!m_words.isEmpty() && !modFold::HoldsAll(Searched(entry, Text(i, Amount)), m_words))) {
            continue;
        }
        m_order.push_back(i);
        const qint64 effect = Effect(i);
        (effect < 0 ? m_sums.Expense : m_sums.Income) += effect < 0 ? -effect : effect;
    }
    m_sums.Count = static_cast<qsizetype>(m_order.size());
}

void cEntryListModel::Order()
{
    m_groups.clear();
    std::sort(m_order.begin(), m_order.end());
    const modEntryOrder::cRanked groups = modEntryOrder::Groups(m_content.Entries, m_order, m_grouping);
    const std::vector<qint64> keys = SortKeys();
    std::vector<int> positions(m_order.size());
    std::iota(positions.begin(), positions.end(), 0);
    const bool isUp = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(positions.begin(), positions.end(), [&](int a, int b) {
        if (!groups.Ranks.empty() && groups.Ranks[At(a)] != groups.Ranks[At(b)]) {
            return groups.Ranks[At(a)] < groups.Ranks[At(b)];
        }
        return isUp ? keys[At(a)] < keys[At(b)] : keys[At(b)] < keys[At(a)];
    });
    std::vector<int> order;
    std::vector<qint64> ranks;
    for (const int position : positions) {
        order.push_back(m_order[At(position)]);
        if (!groups.Ranks.empty()) {
            ranks.push_back(groups.Ranks[At(position)]);
        }
    }
    m_order = std::move(order);
    FormGroups(ranks, groups.Names);
}

void cEntryListModel::FormGroups(const std::vector<qint64>& ranks, const QStringList& names)
{
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        if (i == 0 || ranks[i] != ranks[i - 1]) {
            const QString& name = names.at(ranks[i]);
            m_groups.push_back({name.isEmpty() ? cText::Tr("Keine Angabe") : name, static_cast<int>(i), 0, 0});
        }
        ++m_groups.back().Count;
        m_groups.back().Sum += Effect(m_order[i]);
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

std::vector<qint64> cEntryListModel::SortKeys() const
{
    const int count = static_cast<int>(m_order.size());
    if (m_sortColumn == Date || IsMoneyColumn(m_sortColumn)) {
        std::vector<qint64> keys;
        keys.reserve(m_order.size());
        for (const int entry : m_order) {
            keys.push_back(m_sortColumn == Amount ? Effect(entry)
                                                  : m_content.Entries.at(entry).EntryDate.toJulianDay());
        }
        return keys;
    }
    return modEntryOrder::Rank(count, [&](int i) { return Text(m_order[At(i)], m_sortColumn); }).Ranks;
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
    return entry == nullptr ? cKey{} : cKey{entry->ID, entry->EntryDate};
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
    std::size_t group = 0;
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        while (group + 1 < m_groups.size() && m_groups[group + 1].First <= static_cast<int>(i)) {
            ++group;
        }
        const cEntryItem& entry = m_content.Entries.at(m_order[i]);
        if (wanted.contains(entry.ID, entry.EntryDate)) {
            const bool isInGroup = !m_groups.empty();
            const int first = isInGroup ? m_groups[group].First : 0;
            found.append(
                index(static_cast<int>(i) - first, 0, isInGroup ? index(static_cast<int>(group), 0) : QModelIndex()));
        }
    }
    return found;
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
    case Qt::ToolTipRole: return Tip(item);
    case FutureRole: return item.EntryDate > m_content.Today;
    case CorrectedRole: return item.IsCorrected;
    case ToneRole: {
        if (column == Balance) {
            return m_balances.empty() || m_balances[At(entry)] >= 0 ? Neutral : Expense;
        }
        const bool isTransfer = item.EntryType == modWord::Umbuchung;
        return isTransfer ? Neutral : item.EntryType == modWord::Einnahme ? Income : Expense;
    }
    default: return {};
    }
}

QVariant cEntryListModel::GroupData(const cGroup& group, int column, int role) const
{
    if (role == GroupRole) {
        return true;
    }
    if (role == ToneRole) {
        return group.Sum < 0 ? Expense : Income;
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
    case Date: return modDate::ToGerman(item.EntryDate);
    case Type: return modWord::EntryTypes().ToShown(item.EntryType);
    case Category: return item.EntryCategory;
    case Account: return AccountText(item);
    case Description: return item.EntryDescription;
    case Interval: {
        const QString interval = modWord::Intervals().ToShown(item.EntryInterval);
        return item.IsCorrected ? cText::Tr("{0}, korrigiert", {interval}) : interval;
    }
    case Amount: {
        const bool isExpense = item.EntryType == modWord::Ausgabe;
        const bool leavesAccount = item.EntryType == modWord::Umbuchung && item.EntryAccount == m_content.Account;
        return m_format.Cents(isExpense || leavesAccount ? -item.EntryValue : item.EntryValue);
    }
    case Balance: return m_balances.empty() || m_sortColumn != Date ? QString() : m_format.Cents(m_balances[At(entry)]);
    default: return {};
    }
}

QString cEntryListModel::Tip(const cEntryItem& entry) const
{
    if (!entry.IsCorrected) {
        return entry.EntryDescription;
    }
    const QString tip = cText::Tr("Betrag für diesen Zeitraum von Hand korrigiert.");
    return entry.CorrectionComment.isEmpty() ? tip : tip + u'\n' + entry.CorrectionComment;
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
    return role == Qt::DisplayRole ? QVariant(cText::Tr(titles[At(section)])) : QVariant();
}
