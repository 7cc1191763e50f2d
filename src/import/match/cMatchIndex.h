#pragma once

#include "import/match/cMatchText.h"
#include "model/cEntryItem.h"
#include "model/cImportEntry.h"
#include "model/modPeriod.h"

#include <QHash>
#include <QList>
#include <QString>

#include <compare>
#include <functional>
#include <optional>
#include <vector>

class cDataAccess;
class cImportHive;

// The entries of one account as the bank would see them: occurrences with signed amounts, split entries as one, found
// by day and amount.
class cMatchIndex
{
public:
    struct cItem
    {
        cEntryItem Entry; // the occurrence; of a split entry the first part
        qint64 Cents = 0; // with the sign on this account
        bool IsSeries = false;
        bool IsSplit = false;
        QList<int> Takers; // rows that belong to it already
    };

    // Tells whether an assigned row stands on this account.
    using cIsHere = std::function<bool(const cImportEntry&)>;

    // Reads the account's entries in `range` with some days around it, and which of them have rows in the hive.
    cMatchIndex(cDataAccess& data, const cImportHive& hive, const QString& account, const modPeriod::cRange& range,
                const cIsHere& isHere);

    // True when the index reaches FarthestDays around the day.
    [[nodiscard]] bool Covers(QDate day) const;

    // The items that a row of this day and amount may belong to: same direction, near enough in days, and of a series
    // the occurrence that is nearest.
    [[nodiscard]] std::vector<size_t> Around(QDate day, qint64 cents) const;

    [[nodiscard]] size_t Count() const { return m_items.size(); }
    [[nodiscard]] const cItem& Item(size_t number) const { return m_items[number]; }
    [[nodiscard]] const cMatchText& Text(size_t number);

    // True when another row than this one has the item.
    [[nodiscard]] bool IsTaken(size_t number, int rowId) const;

private:
    struct cPlace
    {
        qint64 Day = 0;
        bool IsMoved = false; // behind the occurrence that is planned for the day
        size_t Number = 0;

        auto operator<=>(const cPlace&) const = default;
    };

    [[nodiscard]] static bool IsBefore(const cPlace& place, qint64 day) { return place.Day < day; }

    void Load(cDataAccess& data);
    void Add(const cEntryItem& occurrence, qint64 cents);
    void AddSplit(const cEntryItemList& parts);
    void NoteDays(int id, const cEntryItem& occurrence);
    void Sort();
    void NoteTakers(const cImportHive& hive, const cIsHere& isHere);
    // The occurrence that a row of this day pays; of an entry that happens once always itself.
    [[nodiscard]] std::optional<size_t> Nearest(const std::vector<cPlace>& occurrences, QDate day) const;

    QString m_account;
    modPeriod::cRange m_range;
    std::vector<cItem> m_items;
    std::vector<cPlace> m_places; // by day
    std::vector<std::optional<cMatchText>> m_texts;
    QHash<int, std::vector<cPlace>> m_byEntry; // items by every ID that rows can be assigned to, by day
};
