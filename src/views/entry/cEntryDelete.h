#pragma once

#include "model/cEntryItem.h"
#include "views/list/cEntryListModel.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct cBookTools;

// How much of a series is meant by an occurrence of it.
enum class eSeriesPart { OnlyThis, FromHere, Whole };

// An entry that goes: as a whole, or occurrences of it on these days, in their order.
struct cDeleteTarget
{
    cEntryItem Entry;
    QList<QDate> Days;
};
using cDeleteTargetList = QList<cDeleteTarget>;

// Deletes entries after the questions that go with it: occurrences or whole series, parts of split entries. Everything
// that one call deletes is one step that can be undone; false when nothing was changed.
class cEntryDelete
{
public:
    explicit cEntryDelete(const cBookTools& tools) : m_tools(tools) {}

    // Deletes the entries of the selected lines. For occurrences of series asks how much of these is meant; the safe
    // answer comes first: an occurrence that is deleted alone is left out, with the amount 0, like
    // cSeriesChange::SkipPeriod.
    bool Delete(const QList<cEntryListModel::cKey>& selection);

    // Deletes whole entries.
    bool Delete(const QList<int>& ids);

    // Deletes a part of the series that this occurrence belongs to.
    bool Delete(const cEntryListModel::cKey& occurrence, eSeriesPart part);

    // Number of parts of the group that the entry belongs to; 0 when it is no part.
    [[nodiscard]] int CountParts(int id) const;

private:
    [[nodiscard]] cDeleteTargetList Targets(const QList<cEntryListModel::cKey>& selection) const;
    [[nodiscard]] cDeleteTargetList OtherParts(const cDeleteTargetList& targets) const;
    [[nodiscard]] bool Run(cDeleteTargetList targets, eSeriesPart part);
    [[nodiscard]] std::optional<eSeriesPart> AskPart(const cDeleteTargetList& targets);
    [[nodiscard]] bool AskParts(cDeleteTargetList& targets, const cDeleteTargetList& others, const QString& question);
    [[nodiscard]] QString PartQuestion(const cDeleteTargetList& targets, const QStringList& options) const;
    [[nodiscard]] QString Question(const cDeleteTargetList& targets, eSeriesPart part) const;
    // A line about the correction that leaving the occurrence out would overwrite; empty without one.
    [[nodiscard]] QString LostCorrection(const cEntryItem& entry, QDate day) const;
    [[nodiscard]] QString WholeQuestion(const cDeleteTargetList& targets) const;
    [[nodiscard]] bool Remove(const cDeleteTargetList& targets, eSeriesPart part);
    [[nodiscard]] bool RemoveOne(const cDeleteTarget& target, eSeriesPart part);

    const cBookTools& m_tools;
};
