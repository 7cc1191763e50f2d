#pragma once

#include "model/cImportEntry.h"
#include "model/cMatch.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

struct cBookTools;

// Brings entries in line with the rows that pay them, within the undo step of the caller, who has assigned the rows
// before. A day is taken over without a question. What changes an amount is asked once for all of the matches, and so
// is what would take back something that the user entered for an occurrence.
class cCorrectionFlow
{
public:
    explicit cCorrectionFlow(const cBookTools& tools) : m_tools(tools) {}

    // What was changed, by number of entries and occurrences.
    struct cDone
    {
        int Days = 0;     // occurrences that moved
        int Amounts = 0;  // occurrences with another amount, this time only
        int FromHere = 0; // series that have another amount from an occurrence on
        int Entries = 0;  // entries that happen once, with the day and the amount of their row

        // Lines for a summary; none for nothing.
        [[nodiscard]] QStringList Lines() const;
    };

    // Empty when the database refuses. `rows` by ID: those of the matches.
    [[nodiscard]] std::optional<cDone> Apply(const QList<cMatch>& matches, const QHash<int, cImportEntry>& rows);

private:
    enum class eAmount { Same, Once, FromHere, Keep };
    // What the user wants of all amounts that differ. Proposed: from here where the amount came twice in a row.
    enum class eWish { Once, FromHere, Keep, Proposed };

    // An occurrence as it is, and what its row says of it.
    struct cChange
    {
        cEntryItem Occurrence;
        cEntryItemFixMod FixMod;
        eAmount Amount = eAmount::Same;
    };
    using cChanges = std::vector<cChange>;
    using cPairs = std::vector<std::pair<cEntryItem, cEntryItem>>; // an entry as it is, and as its row tells it

    [[nodiscard]] bool ApplyOnce(const QList<cMatch>& matches, const QHash<int, cImportEntry>& rows);
    [[nodiscard]] bool AskOnce(const cPairs& unsure) const;
    [[nodiscard]] cChanges Collect(const QList<cMatch>& matches) const;
    [[nodiscard]] bool AskOwn(const QList<cMatch>& own) const;
    void Plan(cChanges& changes, eWish wish) const;
    [[nodiscard]] bool IsNewPrice(const cChanges& changes, size_t place) const;
    [[nodiscard]] qint64 AmountBefore(const cEntryItem& occurrence) const;
    [[nodiscard]] eWish AskAmounts(const cChanges& changes) const;
    [[nodiscard]] bool Write(const cChange& change);
    [[nodiscard]] bool WriteParts(const cChange& change);
    [[nodiscard]] bool ChangeFrom(const cEntryItem& series, const cEntryItem& occurrence, qint64 cents);
    [[nodiscard]] bool KeepLater(const cChanges& changes);

    const cBookTools& m_tools;
    cDone m_done;
    QHash<int, int> m_successors; // of series that were divided, by the ID they had
    QHash<int, qint64> m_former;  // what these came to before
};
