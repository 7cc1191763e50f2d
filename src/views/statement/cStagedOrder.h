#pragma once

#include "base/modFold.h"
#include "model/cImportEntry.h"
#include "views/statement/modStagedGroup.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

class cAmountFormat;
class cStagedFilter;

// Which bank transactions a list shows, in which order and in which groups. The records never move: all of it are
// numbers of rows.
class cStagedOrder
{
public:
    // Which of the rows are looked at, before the filter.
    struct cShown
    {
        bool OpenOnly = false;
        bool NoCategory = false; // only rows that have none, or the default one, booked ones among them
        bool HidesOld = false;   // rows more than three months older than the newest one of their account
        int FirstId = 0;
        int LastId = std::numeric_limits<int>::max();
        bool operator==(const cShown&) const = default;
        [[nodiscard]] bool Spans(int id) const { return id >= FirstId && id <= LastId; }
    };

    struct cGroup
    {
        QString Name;
        int First = 0; // position
        int Count = 0;
        int Open = 0;
        qint64 Sum = 0; // cents
    };

    struct cCounts
    {
        qsizetype Total = 0; // between the first and the last ID
        qsizetype Open = 0;  // of these
        qsizetype Old = 0;   // left out because of their age
    };

    // Numbers to sort the given rows by, one for each.
    using fnKeys = std::function<std::vector<qint64>(const std::vector<int>& among)>;

    explicit cStagedOrder(const cAmountFormat& format);
    ~cStagedOrder();

    // After these the rows are arranged anew with Arrange.
    void SetRows(cImportEntryList rows);
    void SetShown(const cShown& shown) { m_shown = shown; }
    void SetGrouping(modStagedGroup::eGrouping grouping) { m_grouping = grouping; }
    using fnHas = std::function<bool(const cImportEntry&)>;
    void SetHasCategory(fnHas hasCategory)
    {
        m_hasCategory = std::move(hasCategory);
    } // tells whether a row has a category
    void SetKnowledge(modStagedGroup::cKnowledge known) { m_known = std::move(known); } // for the groups of the review
    void Arrange(const fnKeys& keys, Qt::SortOrder order, Qt::SortOrder groups);

    // Every word must be found. Keeps the arrangement.
    void SetWords(const QList<modFold::cFolded>& words);
    [[nodiscard]] const QList<modFold::cFolded>& Words() const { return m_words; }

    [[nodiscard]] const cImportEntryList& Rows() const { return m_rows; }
    [[nodiscard]] const cShown& Shown() const { return m_shown; }
    [[nodiscard]] modStagedGroup::eGrouping Grouping() const { return m_grouping; }
    [[nodiscard]] const cCounts& Counts() const { return m_counts; }

    // What is shown, by position.
    [[nodiscard]] int Count() const { return static_cast<int>(m_order.size()); }
    [[nodiscard]] const cImportEntry& At(int position) const
    {
        return m_rows.at(m_order[static_cast<std::size_t>(position)]);
    }
    [[nodiscard]] const std::vector<cGroup>& Groups() const { return m_groups; } // empty without grouping
    [[nodiscard]] int GroupAt(int position) const;                               // -1 without grouping
    // The positions of the rows as far as they are shown, upwards.
    [[nodiscard]] QList<int> PositionsOf(const QList<int>& ids) const;

private:
    void Choose();
    void Sort(const fnKeys& keys, Qt::SortOrder order, Qt::SortOrder groupOrder);
    void Select(const std::vector<int>& among); // decides which of these are shown, in this order
    void Gather();                              // numbers and sums of the groups

    const cAmountFormat& m_format;
    cImportEntryList m_rows;
    std::unique_ptr<cStagedFilter> m_filter; // made when something is typed for the first time
    cShown m_shown;
    modStagedGroup::eGrouping m_grouping = modStagedGroup::eGrouping::None;
    modStagedGroup::cKnowledge m_known;
    fnHas m_hasCategory;
    QList<modFold::cFolded> m_words;
    cCounts m_counts;
    std::vector<int> m_all;     // rows looked at in their order, so that filtering does not sort
    std::vector<int> m_order;   // those that are shown
    std::vector<int> m_groupOf; // group by row; empty without grouping
    QStringList m_groupNames;
    std::vector<cGroup> m_groups;
};
