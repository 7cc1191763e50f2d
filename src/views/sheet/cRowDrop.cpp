#include "views/sheet/cRowDrop.h"

#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "views/sheet/cCellEdit.h"
#include "views/sheet/cManyChange.h"

bool cRowDrop::OnAccount(const QList<cEntryListModel::cKey>& rows, const QString& account, const QString& shown) const
{
    return !m_tools.Data.IsReadOnly()
        && cManyChange(m_tools, rows).AskAndSave({.Account = account}, shown) == cManyChange::eSaved::Saved;
}

QList<cEntryListModel::cKey> cRowDrop::OnCategory(const QList<cEntryListModel::cKey>& rows,
                                                  const QString& category) const
{
    QList<cEntryListModel::cKey> others;
    for (const cEntryListModel::cKey& row : rows) {
        const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(row.ID);
        if (entry && entry->EntryCategory != category) {
            others.append(row);
        }
    }
    if (others.isEmpty() || m_tools.Data.IsReadOnly()) {
        return {};
    }
    if (others.size() > 1) {
        const bool isSaved =
            cManyChange(m_tools, others).AskAndSave({.Category = category}) == cManyChange::eSaved::Saved;
        return isSaved ? rows : QList<cEntryListModel::cKey>();
    }
    cCellEdit cell(m_tools);
    const bool isSaved = cell.Start(others.constFirst(), cEntryListModel::Category)
        && cell.Save(others.constFirst(), cEntryListModel::Category, category) == cCellEdit::eSaved::Saved;
    if (!isSaved) {
        return {};
    }
    QList<cEntryListModel::cKey> stored = rows;
    stored[rows.indexOf(others.constFirst())] = cell.SavedKey();
    return stored;
}
