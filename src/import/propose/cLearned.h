#pragma once

#include "import/propose/cPayeeKeys.h"
#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class cDataAccess;
class cImportHiveCache;

// What the user chose for earlier transactions of the same payee.
class cLearned
{
public:
    struct cChoice
    {
        QString Category;
        QString Interval;
        QString Type;    // kind of the entry
        QString Account; // of a transfer: the two accounts
        QString AccountMove;
        QDate SeriesEnd;        // of a series: its last day
        int Count = 0;          // the newest rows that were booked like this, one after the other
        bool IsSure = false;    // at least two, and the category did not go to and fro before
        bool HasOthers = false; // other rows of this payee were booked in another way
        QString Who;            // what was really learned: the payee, or the account of the counterparty
        bool IsAccount = false; // the latter
    };

    // `cashStart` is the day on which the purse was counted; invalid when it was not.
    cLearned(cDataAccess& data, cImportHiveCache& hive, QDate cashStart);

    // What was decided last: the entry whose category was changed last, else the one that was booked last. Rows with
    // the same sign go before others. Empty when nothing like the row was booked yet. The payee decides what is alike,
    // the account of the counterparty only when all its rows carry one payee.
    [[nodiscard]] std::optional<cChoice> Find(const cImportEntry& row);

private:
    struct cBooked
    {
        int RowId = 0;
        int EntryId = 0;
        qint64 Cents = 0;
    };
    struct cEntry
    {
        QString Category;
        QString Interval;
        QString Type;
        QString Account;
        QString AccountMove;
        QDate End;
    };
    // The bookings of one payee, or of one account.
    struct cHistory
    {
        QList<cBooked> Rows;
        bool IsRanked = false;
        QList<cBooked> In; // the newest decisions, the last one first
        QList<cBooked> Out;
        QHash<QString, int> Counts; // of all rows, by category
    };
    struct cAccount
    {
        cHistory History;
        QStringList Payees; // keys, as far as they differ
        bool IsMixed = false;
    };
    void Build(cImportHiveCache& hive);
    [[nodiscard]] QString KeyOf(const cPayeeKeys::cPayee& payee, const cImportEntry& row) const;
    static void NotePayee(cAccount& account, const cPayeeKeys::cPayee& payee);
    [[nodiscard]] const cEntry& Entry(int id);
    [[nodiscard]] QString CategoryOf(int entryId);
    void Rank(cHistory& history);
    void RankSide(QList<cBooked>& side) const;
    [[nodiscard]] QList<cBooked> Decided(cHistory& history, const cImportEntry& row);
    [[nodiscard]] std::optional<cChoice> Choose(cHistory& history, const cImportEntry& row);
    [[nodiscard]] std::optional<cChoice> ByAmount(QList<cBooked> decided, qint64 cents);
    [[nodiscard]] cChoice ChoiceOf(const QList<cBooked>& decided, qsizetype count);

    cDataAccess& m_data;
    QDate m_cashStart;
    cPayeeKeys m_payees;
    QHash<QString, cHistory> m_byPayee;
    QHash<QString, cAccount> m_byAccount;
    QHash<int, int> m_corrected; // entry to its place among those that were changed, the newest is the highest
    QSet<int> m_entryIds;
    std::optional<QHash<int, QString>> m_categories; // by entry, read at once where the entries are many
    QHash<int, cEntry> m_entries;                    // as far as they were asked for
};
