#pragma once

#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

class cDataAccess;
class cImportHiveCache;

// What the user chose for earlier transactions of the same counterparty.
class cLearned
{
public:
    struct cChoice
    {
        QString Category;
        QString Interval; // of the newest entry in the category
        int Count = 0;    // entries booked in the category
    };

    cLearned(cDataAccess& data, cImportHiveCache& hive);

    // The category booked most often, the newest on a tie; empty when nothing like the row was booked yet. The account
    // of the counterparty decides what is alike, its name only where that is unknown.
    [[nodiscard]] std::optional<cChoice> Find(const cImportEntry& row);

private:
    struct cBooked
    {
        int RowId = 0;
        int EntryId = 0;
    };
    struct cEntry
    {
        QDate Date;
        QString Category;
        QString Interval;
    };

    void Build(cImportHiveCache& hive);
    [[nodiscard]] const cEntry& Entry(int id);
    void LoadAll();
    [[nodiscard]] std::optional<cChoice> Choose(const QList<cBooked>& rows, int exceptRow);

    cDataAccess& m_data;
    QHash<QString, QList<cBooked>> m_byAccount;
    QHash<QString, QList<cBooked>> m_byName;
    QSet<int> m_entryIds;
    QHash<int, cEntry> m_entries; // as far as they were asked for
};
