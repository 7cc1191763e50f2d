#pragma once

#include "model/cEntryItem.h"
#include "views/list/cEntryListModel.h"

#include <QList>
#include <QString>

class cAmountFormat;
class cDataAccess;
class cUser;

// Deletes entries after the questions that go with it: whole series, parts of split entries.
class cEntryDelete
{
public:
    cEntryDelete(cDataAccess& data, cUser& user, const cAmountFormat& format)
        : m_data(data),
          m_user(user),
          m_format(format)
    {
    }

    // Asks once and deletes the entries of the selected lines in one step. False when nothing was changed.
    bool Delete(const QList<cEntryListModel::cKey>& selection);
    bool Delete(const QList<int>& ids);

    // Number of parts of the group that the entry belongs to; 0 when it is no part.
    [[nodiscard]] int CountParts(int id) const;

private:
    [[nodiscard]] QString Question(const cEntryItemList& entries) const;
    [[nodiscard]] cEntryItemList OtherParts(const cEntryItemList& entries) const;
    [[nodiscard]] bool AskParts(cEntryItemList& entries, const cEntryItemList& others);
    [[nodiscard]] bool Remove(const cEntryItemList& entries);

    cDataAccess& m_data;
    cUser& m_user;
    const cAmountFormat& m_format;
};
