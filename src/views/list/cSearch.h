#pragma once

#include "model/cEntryItem.h"
#include "model/modPeriod.h"

#include <QSet>
#include <QString>

#include <optional>

struct cBookTools;

// What a search asks for. Everything is optional; what is given has to hold together.
struct cSearchQuery
{
    QString Text{};                // every word is found in what lists show of the entry
    std::optional<qint64> Least{}; // cents without sign, both included
    std::optional<qint64> Most{};
    modPeriod::cRange Days{};
    QString Account{};        // of a transfer either account
    QString Type{};           // "Einnahme", "Ausgabe" or "Umbuchung"
    QString Payer{};          // a choice of modPeople
    QString Category{};       // a path; a main category finds its sub-categories too
    bool IsCorrected = false; // only occurrences whose amount was corrected, or that the user moved
    bool IsFromBank = false;  // only entries that a bank transaction belongs to

    bool operator==(const cSearchQuery&) const = default;

    [[nodiscard]] bool IsEmpty() const; // nothing but blanks is given
};

// Finds entries of the whole book. A series counts with each of its occurrences. Where the days have no end, these are
// the occurrences up to today, further ones that were corrected, and the first one of a series that is still to come:
// a search is about what has happened, and a series without end would bury that under decades to come.
class cSearch
{
public:
    explicit cSearch(const cBookTools& tools);

    // One-off entries in date order, then the occurrences series by series.
    [[nodiscard]] cEntryItemList Find(const cSearchQuery& query);

    // The same in steps, for who shows results while the search is still being typed: the entries of these days, this
    // account and kind, read from the book ...
    [[nodiscard]] cEntryItemList Load(const cSearchQuery& query);
    // ... and of those what fits in amount, category, payer and marks. What is left to check is the text.
    [[nodiscard]] cEntryItemList Narrow(const cEntryItemList& loaded, const cSearchQuery& query);

private:
    void DropFuture(cEntryItemList& entries) const;
    void ReadBankEntries();

    const cBookTools& m_tools;
    QSet<int> m_bankEntries;              // IDs of entries that a bank transaction belongs to
    std::optional<quint64> m_bankVersion; // of the staged rows when they were read
};
