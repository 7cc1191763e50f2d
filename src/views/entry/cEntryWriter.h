#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QSet>

#include <functional>
#include <optional>

class cDataAccess;
class cUser;

// One entry to store. The ID says which stored row it replaces; 0 for a new one.
struct cEntryWrite
{
    cEntryItem Entry;
    cEntryItemFixModList Corrections; // all that it is to have afterwards
};

// Stores the rows of one entry (one, or the parts of a split one) with their corrections, and asks before corrections
// are lost.
class cEntryWriter
{
public:
    cEntryWriter(cDataAccess& data, cUser& user) : m_data(data), m_user(user) {}

    // Rows whose period changed lose their corrections, but for those of what the bank has booked: asked before
    // anything is written. Clears those corrections. False when the user declines. `from` as in Write.
    [[nodiscard]] bool AskLosses(QList<cEntryWrite>& rows, QDate from);

    // Where a stored series, or all of its parts together, gets another amount, the occurrences that the bank has paid
    // keep theirs by corrections. Their number. Parts that are removed cannot keep any, so the user is asked: empty
    // when he declines.
    [[nodiscard]] std::optional<int> KeepPaid(QList<cEntryWrite>& rows, const QList<int>& removed);

    // Adds, changes and removes. With a valid `from`, the stored series end the day before and new ones begin; what was
    // assigned or corrected from then on goes along. Occurrences that were only moved get a new amount. Sets the IDs.
    // On failure the caller takes its undo step back.
    [[nodiscard]] bool Write(QList<cEntryWrite>& rows, const QList<int>& removed, QDate from);

    // Ends a stored series the day before its occurrence on `from`; later corrections go, and what the bank booked in
    // later periods waits again. On failure the caller takes its undo step back.
    [[nodiscard]] bool End(int id, QDate from);

private:
    // What becomes of the contract behind a series that ends: one that goes on is told of by the series that follows.
    enum class eContract { Ends, GoesOn };

    using cPaid = QMap<QDate, bool>; // see PaidPeriods

    [[nodiscard]] bool Loses(const cEntryWrite& row, QDate from, const QSet<QDate>& booked) const;
    void FollowAmounts(QList<cEntryWrite>& rows, const QList<int>& removed) const;
    [[nodiscard]] bool AskLosing(const cEntryItem& stored, const cPaid& paid, const cEntryItem& after);
    [[nodiscard]] QSet<QDate> KeepAmounts(const cEntryItem& stored, qint64 cents, const cPaid& paid,
                                          cEntryWrite& row) const;
    [[nodiscard]] cEntryItemList StoredSeries(const QList<cEntryWrite>& rows, const QList<int>& removed) const;
    // For each bank transaction of the series: the start of the period that it paid, cents without sign.
    void ForBooked(const cEntryItemList& series, const std::function<void(QDate, qint64)>& take) const;
    [[nodiscard]] cPaid PaidPeriods(const cEntryItemList& before, const QList<cEntryWrite>& rows) const;
    [[nodiscard]] bool WriteRow(cEntryWrite& row);
    [[nodiscard]] bool Change(const cEntryItem& entry);
    [[nodiscard]] bool WriteFrom(cEntryWrite& row, QDate from);
    [[nodiscard]] bool Remove(int id, QDate from, int heir);
    [[nodiscard]] bool EndBefore(int id, QDate from, eContract contract);
    [[nodiscard]] QList<int> RowsFrom(const cEntryItem& series, QDate from) const;
    [[nodiscard]] bool MoveImports(const QList<int>& rowIds, int newId);
    [[nodiscard]] bool WriteCorrections(const cEntryWrite& row);
    [[nodiscard]] bool MarkGroup(QList<cEntryWrite>& rows);

    cDataAccess& m_data;
    cUser& m_user;
};
