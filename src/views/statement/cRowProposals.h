#pragma once

#include "model/cImportEntry.h"
#include "views/statement/cStagedSource.h"
#include "views/statement/modStagedTwins.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cAccountMap;
class cDataAccess;
class cImportHiveCache;
class cImportRuns;
class cMatchFlow;
class cProposer;
struct cProposal;

// What each open bank transaction should become: as proposed, or as the user chose instead. Worked out for the rows
// that somebody asks for.
class cRowProposals
{
public:
    // What it works with; all of it outlives this object.
    struct cParts
    {
        cDataAccess& Data;
        cImportHiveCache& Hive;
        const cAccountMap& Accounts;
        cMatchFlow& Matching;
        const cImportRuns& Runs;
    };

    // How far a row can be booked without looking at it.
    enum class eTrust {
        Certain, // learned, by a rule, an own account, a series, or chosen by hand
        Unknown, // nothing but an ambiguous keyword or the default
        InBook,  // an entry of the book may be the same
        Twice,   // another row may be the same
    };

    explicit cRowProposals(const cParts& parts);
    ~cRowProposals();

    // The rows or the book are others now. Choices for rows that are gone, booked or others are dropped.
    void Forget();

    [[nodiscard]] cStagedInfo Info(const cImportEntry& row);
    [[nodiscard]] cProposal For(const cImportEntry& row); // with what the user chose
    [[nodiscard]] eTrust TrustIn(const cImportEntry& row);
    // Another row that may be the same transaction.
    [[nodiscard]] std::optional<modStagedTwins::cTwin> TwinOf(int rowId);

    [[nodiscard]] QStringList Categories() const; // paths to choose from
    // The user's own choice for rows; false when it is none of those that can be chosen.
    bool SetCategory(const QList<int>& rowIds, const QString& category);
    bool SetInterval(const QList<int>& rowIds, const QString& interval);

private:
    struct cChoice
    {
        cImportEntry Row; // that it was made for; the IDs of rows that are gone come again
        QString Category; // empty: as proposed
        QString Interval;
    };

    [[nodiscard]] const cProposal& Propose(const cImportEntry& row);
    void TakeChoice(const QList<int>& rowIds, QString cChoice::*field, const QString& value);
    [[nodiscard]] cStagedInfo BookedInfo(const cImportEntry& row);
    void Warn(cStagedInfo& info, const modStagedTwins::cTwin& twin);
    void FindTwins();

    cParts m_parts;
    std::unique_ptr<cProposer> m_proposer; // it reads what the user chose before only once per state of the book
    QHash<int, cProposal> m_proposals;     // by row ID, like the others
    QHash<int, cChoice> m_choices;
    std::optional<QHash<int, modStagedTwins::cTwin>> m_twins;
};
