#pragma once

#include "model/cImportEntry.h"

#include <QList>
#include <QString>

class cAmountFormat;
class cImportHiveCache;
class cRowProposals;
class cStagedChoice;

// Leads through the rows of a review: which of them can be booked unseen, which one needs a look next, and what becomes
// of those that are selected.
class cStagedGuide
{
public:
    // What it works with; all of it outlives the guide.
    struct cParts
    {
        cStagedChoice& View;
        cRowProposals& Proposals;
        cImportHiveCache& Hive;
        const cAmountFormat& Format;
    };

    // What is to be selected next, if anything. A field is the category of a single row, open to be typed.
    struct cStop
    {
        QList<int> Rows{};
        bool IsField = false;
    };

    // How the list stands before some of its rows are booked.
    struct cBefore
    {
        QList<int> Booked{}; // those that are wanted
        QList<int> Open{};   // in the order of the list
    };

    explicit cStagedGuide(const cParts& parts) : m_parts(parts) {}

    // After an import: what needs no look, so that Enter books it, or else the first row that does. A pile that is too
    // high to be planned at once is selected as a whole; booking it asks about what is not sure.
    [[nodiscard]] cStop Staged(const QList<int>& ids);

    // Ask for the first before rows are booked and for the second afterwards, with what is selected then. The list
    // itself hands the selection on from line to line, and that is left alone.
    [[nodiscard]] cBefore Before(const QList<int>& booked) const;
    [[nodiscard]] cStop After(const cBefore& before, const QList<int>& selected);

    // Those of the rows that are in the book already or whose proposal is sure. Of a high pile only what was planned.
    [[nodiscard]] QList<int> Sure(const QList<int>& ids);

    // "Vorschläge annehmen (7)": of the rows shown, as far as they are known.
    [[nodiscard]] QString AcceptText();
    // What becomes of the selected rows, or became of them, in one line. With a field that cStop has opened it says
    // what Enter does there.
    [[nodiscard]] QString SelectionText(const QList<int>& ids, bool isFieldOpen);

private:
    [[nodiscard]] cImportEntryList RowsOf(const QList<int>& ids);
    [[nodiscard]] QString OneText(const cImportEntry& row, bool isFieldOpen);
    [[nodiscard]] bool NeedsLook(int id);
    [[nodiscard]] bool IsFieldEnough(const cImportEntry& row); // no other doubt than the category
    [[nodiscard]] int NextToLook(const QList<int>& order, int after);
    [[nodiscard]] cStop LookAt(int id);

    cParts m_parts;
};
