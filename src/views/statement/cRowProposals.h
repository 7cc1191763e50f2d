#pragma once

#include "model/cImportEntry.h"
#include "model/cRowPlan.h"
#include "views/statement/cStagedSource.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cAccountMap;
class cAmountFormat;
class cDataAccess;
class cImportHiveCache;
class cImportPlan;
class cImportRuns;
class cProgress;
class cRowChoices;
class cSettings;

// What each open bank transaction should become: as planned, or as the user chose instead. A pile that is not too high
// is planned as a whole, a higher one around the rows that somebody asks for.
class cRowProposals
{
public:
    // What it works with; all of it outlives this object.
    struct cParts
    {
        cDataAccess& Data;
        cImportHiveCache& Hive;
        cSettings& Settings;
        const cAccountMap& Accounts;
        const cImportRuns& Runs;
        const cAmountFormat& Format;
    };

    explicit cRowProposals(const cParts& parts);
    ~cRowProposals();

    // The rows or the book are others now.
    void Forget();

    [[nodiscard]] cStagedInfo Info(const cImportEntry& row);
    [[nodiscard]] eStagedGroup Group(const cImportEntry& row);
    [[nodiscard]] bool IsHigh(); // the pile is too high to be planned at once
    // Plans some more of a high pile; false when nothing is left to plan.
    bool PlanNext();
    [[nodiscard]] cRowPlan PlanOf(const cImportEntry& row); // with what the user chose
    // The plans of open rows, all of them weighed against each other, which is what booking needs. Empty when the user
    // stops it.
    [[nodiscard]] std::optional<QHash<int, cRowPlan>> Plans(const QList<int>& rowIds, cProgress& progress);

    // The user's own choice for rows; false when it is none of those that can be chosen.
    bool SetCategory(const QList<int>& rowIds, const QString& category);
    bool SetInterval(const QList<int>& rowIds, const QString& interval);
    void SetDescription(const QList<int>& rowIds, const QString& description);
    // The category that a text names, as it is written; empty when it is none that can be chosen.
    [[nodiscard]] QString PathOf(const QString& category) const;

private:
    [[nodiscard]] cImportPlan& Plan();
    [[nodiscard]] const cRowPlan& Planned(const cImportEntry& row);
    [[nodiscard]] cRowPlan WithChoice(cRowPlan plan) const;
    [[nodiscard]] cStagedInfo BookedInfo(const cImportEntry& row);
    void Warn(cStagedInfo& info, const cRowTwin& twin);

    cParts m_parts;
    std::unique_ptr<cImportPlan> m_plan; // it reads the book only once per state of it
    QHash<int, cRowPlan> m_planned;      // by row ID
    bool m_isWhole = false;              // all open rows were planned at once
    qsizetype m_next = 0;                // of a high pile, the place up to which all is planned
    std::unique_ptr<cRowChoices> m_choices;
};
