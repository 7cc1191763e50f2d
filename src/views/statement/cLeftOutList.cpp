#include "views/statement/cLeftOutList.h"

#include "base/cText.h"
#include "core/cBookTools.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cImportResult.h"
#include "import/stage/cLeftOutRows.h"
#include "import/stage/cStaging.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/ledger/modImportText.h"
#include "views/statement/modImportPreview.h"

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

cLeftOutList::cLeftOutList(const cBookTools& tools, cImportHiveCache& hive, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_hive(hive)
{
}

cLeftOutList::~cLeftOutList() = default;

void cLeftOutList::Fill(const QList<cImportResult>& results, const cRepeatList& repeats)
{
    m_rows.clear();
    for (const cImportResult& result : results) {
        Add(result);
    }
    for (const cRepeat& repeat : repeats) {
        m_rows.append({repeat.Entry, cText::Tr("steht mehrmals gleich im Kontoauszug"), repeat.Number});
    }
    (void)cLeftOutRows(m_tools.Settings).Note(repeats); // of a refusal the user has been told
    Q_EMIT Changed();
}

// Rows without a day or an amount cannot be taken; the summary names them.
void cLeftOutList::Add(const cImportResult& result)
{
    for (const cImportEntry& row : result.Duplicates) {
        m_rows.append({row, cText::Tr("schon vorhanden")});
    }
    for (const cImportEntry& row : result.Alike) {
        m_rows.append({row, cText::Tr("schon vorhanden, nur anders geschrieben")});
    }
    for (const cImportEntry& row : result.Deleted) {
        m_rows.append({row, cText::Tr("früher abgerufen und von Ihnen gelöscht")});
    }
    for (const cSkippedRow& row : result.Skipped) {
        if (!result.IsRefused && row.Entry.ImportDate.isValid() && row.Entry.ImportValue != 0) {
            m_rows.append({row.Entry, modImportPreview::Kind(row.Kind)});
        }
    }
}

void cLeftOutList::Drop()
{
    m_rows.clear();
    Q_EMIT Changed();
}

QStringList cLeftOutList::Texts() const
{
    QStringList texts;
    for (const cRow& row : m_rows) {
        texts.append(modImportText::Row(row.Entry, m_tools.Format) + u"  ·  " + row.Reason);
    }
    return texts;
}

void cLeftOutList::Stage(const QList<int>& places)
{
    cUndoStep step(m_tools.Data, cText::Tr("Umsätze trotzdem übernommen"));
    cStaging staging(m_hive);
    QList<cRow> rest = m_rows;
    QList<cRow> taken;
    QList<int> downwards = places;
    downwards.removeIf([&](int place) { return place < 0 || place >= m_rows.size(); });
    std::sort(downwards.begin(), downwards.end(), std::greater<>());
    for (const int place : std::as_const(downwards)) {
        taken.append(rest.takeAt(place));
    }
    const bool isStaged = std::all_of(taken.begin(), taken.end(), [&](cRow& row) {
        return staging.StageImportEntry(row.Entry, eDuplicateTest::Skip) == eStaged::Staged;
    });
    if (!step.DoneIf(isStaged)) {
        return; // the user has been told
    }
    QList<int> ids;
    for (const cRow& row : std::as_const(taken)) {
        (void)cLeftOutRows(m_tools.Settings).Forget({{row.Entry, row.Repeat}});
        ids.append(row.Entry.ID);
    }
    m_rows = rest;
    Q_EMIT Changed();
    Q_EMIT Staged(ids);
}
