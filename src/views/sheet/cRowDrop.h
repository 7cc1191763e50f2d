#pragma once

#include "views/list/cEntryListModel.h"

#include <QList>
#include <QString>

struct cBookTools;

// What becomes of lines of an entry list that are dropped somewhere, each time as one step.
class cRowDrop
{
public:
    explicit cRowDrop(const cBookTools& tools) : m_tools(tools) {}

    // Gives them this account, or this category, after a question; a single line is asked what its cell would ask, so
    // that of an occurrence the rest of the series can be meant. Lines that have the category are left out. `shown`:
    // the account by which the list shows them, empty for all. False, or no lines, when nothing was stored; else the
    // lines as they are called now, because the rest of a series is stored as another entry.
    [[nodiscard]] bool OnAccount(const QList<cEntryListModel::cKey>& rows, const QString& account,
                                 const QString& shown) const;
    [[nodiscard]] QList<cEntryListModel::cKey> OnCategory(const QList<cEntryListModel::cKey>& rows,
                                                          const QString& category) const;

private:
    const cBookTools& m_tools;
};
