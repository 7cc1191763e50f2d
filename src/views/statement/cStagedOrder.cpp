#include "views/statement/cStagedOrder.h"

#include "views/list/cListFilter.h"
#include "views/statement/cStagedFilter.h"

#include <QDate>
#include <QHash>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int youngMonths = 3;

std::size_t Index(int number)
{
    return static_cast<std::size_t>(number);
}

// The first day that is not old, by number of the bank account.
QHash<QString, QDate> YoungDays(const cImportEntryList& rows)
{
    QHash<QString, QDate> days;
    for (const cImportEntry& row : rows) {
        QDate& newest = days[row.ImportAccount];
        newest = !newest.isValid() || newest < row.ImportDate ? row.ImportDate : newest;
    }
    for (QDate& day : days) {
        day = day.addMonths(-youngMonths);
    }
    return days;
}

} // namespace

cStagedOrder::cStagedOrder(const cAmountFormat& format) : m_format(format)
{
}

cStagedOrder::~cStagedOrder() = default;

void cStagedOrder::SetRows(cImportEntryList rows)
{
    m_filter.reset();
    m_rows = std::move(rows);
}

void cStagedOrder::Arrange(const fnKeys& keys, Qt::SortOrder order, Qt::SortOrder groups)
{
    Choose();
    Sort(keys, order, groups);
    Select(m_all);
}

void cStagedOrder::SetWords(const QList<modFold::cFolded>& words)
{
    const bool isNarrower = cListFilter::IsNarrower(words, m_words);
    m_words = words;
    Select(isNarrower ? m_order : m_all);
}

void cStagedOrder::Choose()
{
    m_counts = {};
    m_all.clear();
    const QHash<QString, QDate> young = m_shown.HidesOld ? YoungDays(m_rows) : QHash<QString, QDate>();
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const cImportEntry& row = m_rows.at(i);
        if (!m_shown.Spans(row.ID)) {
            continue;
        }
        ++m_counts.Total;
        m_counts.Open += row.ImportAssigned ? 0 : 1;
        if (m_shown.NoCategory ? m_hasCategory(row) : m_shown.OpenOnly && row.ImportAssigned) {
            continue;
        }
        const bool isOld = m_shown.HidesOld && row.ImportDate < young.value(row.ImportAccount);
        m_counts.Old += isOld ? 1 : 0;
        if (!isOld) {
            m_all.push_back(i);
        }
    }
}

void cStagedOrder::Sort(const fnKeys& keysOf, Qt::SortOrder order, Qt::SortOrder groupOrder)
{
    modStagedGroup::cGroups groups = modStagedGroup::Gather(m_rows, m_all, m_grouping, m_known);
    const std::vector<qint64> keys = keysOf(m_all);
    const bool isUp = order == Qt::AscendingOrder;
    const bool areGroupsUp = groupOrder == Qt::AscendingOrder;
    std::vector<int> places(m_all.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        const qint64 first = groups.Numbers.empty() ? 0 : groups.Numbers[Index(a)];
        const qint64 second = groups.Numbers.empty() ? 0 : groups.Numbers[Index(b)];
        if (first != second) {
            return areGroupsUp ? first < second : second < first;
        }
        return isUp ? keys[Index(a)] < keys[Index(b)] : keys[Index(b)] < keys[Index(a)];
    });
    m_groupNames = std::move(groups.Names);
    m_groupOf.assign(m_grouping == modStagedGroup::eGrouping::None ? 0 : Index(static_cast<int>(m_rows.size())), 0);
    for (int& place : places) {
        const int row = m_all[Index(place)];
        if (!m_groupOf.empty()) {
            m_groupOf[Index(row)] = static_cast<int>(groups.Numbers[Index(place)]);
        }
        place = row;
    }
    m_all = std::move(places);
}

void cStagedOrder::Select(const std::vector<int>& among)
{
    if (m_words.isEmpty()) {
        m_order = among;
    } else {
        if (!m_filter) {
            m_filter = std::make_unique<cStagedFilter>(m_rows, m_format);
        }
        m_order = m_filter->Find(m_words, among);
    }
    Gather();
}

void cStagedOrder::Gather()
{
    m_groups.clear();
    int number = -1;
    for (int position = 0; !m_groupOf.empty() && position < Count(); ++position) {
        const cImportEntry& row = At(position);
        const int own = m_groupOf[Index(m_order[Index(position)])];
        if (own != number) {
            number = own;
            m_groups.push_back({m_groupNames.at(number), position, 0, 0, 0});
        }
        ++m_groups.back().Count;
        m_groups.back().Open += row.ImportAssigned ? 0 : 1;
        m_groups.back().Sum += row.ImportValue;
    }
}

int cStagedOrder::GroupAt(int position) const
{
    const auto after = std::upper_bound(m_groups.begin(), m_groups.end(), position,
                                        [](int wanted, const cGroup& group) { return wanted < group.First; });
    return static_cast<int>(after - m_groups.begin()) - 1;
}

QList<int> cStagedOrder::PositionsOf(const QList<int>& ids) const
{
    QList<int> wanted = ids;
    std::sort(wanted.begin(), wanted.end());
    QList<int> positions;
    for (int position = 0; position < Count() && positions.size() < ids.size(); ++position) {
        if (std::binary_search(wanted.cbegin(), wanted.cend(), At(position).ID)) {
            positions.append(position);
        }
    }
    return positions;
}
