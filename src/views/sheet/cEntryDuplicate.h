#pragma once

#include "model/cEntryItem.h"
#include "views/list/cEntryListModel.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct cBookTools;

// Copies entries of the list to another day. A copy is an entry of its own that comes once: of an occurrence it takes
// the amount that the list shows, not the series and not the correction. Who paid goes along; a bank transaction, a
// receipt and the end of a contract belong to the entry that has them.
class cEntryDuplicate
{
public:
    enum class eDay {
        Today,
        NextMonth, // the same day of the month after that of the entry, or the last one of a shorter month
    };

    explicit cEntryDuplicate(const cBookTools& tools) : m_tools(tools) {}

    // The new lines, as one step that can be undone; none when nothing was written, of which the user was told. Parts
    // of a split purchase that are copied together stay together. Start balances are left out.
    [[nodiscard]] QList<cEntryListModel::cKey> Duplicate(const QList<cEntryListModel::cKey>& rows, eDay day);

    // What was done, for the user: "'Miete' zum 15.04.2026 dupliziert."
    [[nodiscard]] const QString& Text() const { return m_text; }

private:
    [[nodiscard]] std::optional<cEntryItem> Copy(const cEntryListModel::cKey& row, eDay day) const;
    // With the day on which each of the originals was planned.
    [[nodiscard]] cEntryItemList Copies(const QList<cEntryListModel::cKey>& rows, eDay day,
                                        QList<QDate>& planned) const;
    [[nodiscard]] bool Write(cEntryItemList& copies, const QList<QDate>& planned) const;

    const cBookTools& m_tools;
    QString m_text;
};
