#pragma once

#include "model/cEntryItem.h"
#include "views/entry/cEntryFields.h"

#include <QList>

class cDataAccess;

// The stored side of split entries. The kind of the whole is that of its net sum; a part of the opposite kind counts
// against it and is shown below zero.
class cSplitGroup
{
public:
    explicit cSplitGroup(cDataAccess& data) : m_data(data) {}

    // All parts of the group that an entry belongs to, first part first; empty when it is no part.
    [[nodiscard]] cEntryItemList Parts(const cEntryItem& entry) const;

    // Marks the entries as one group named by the first of them, or as plain entries when there is only one.
    [[nodiscard]] bool Mark(const cEntryItemList& entries) const;

    // Fills kind, whole amount and rows of the fields from the parts.
    static void Show(const cEntryItemList& parts, cEntryFields& fields);

    // The parts to store: `whole` with category, description, kind and amount of each filled row of the table, and its
    // ID.
    [[nodiscard]] static cEntryItemList Build(const cEntryItem& whole, const cEntryFields& fields);

private:
    cDataAccess& m_data;
};
