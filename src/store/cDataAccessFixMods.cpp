#include "base/modAmount.h"
#include "base/modDate.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

#include <cstdlib>

namespace {

cBoundList FixModValues(const cEntryItemFixMod& fixMod)
{
    return {fixMod.EntryRelation,
            modFixModRow::Kind(fixMod),
            modDate::ToIso(fixMod.EntryStartDate),
            modDate::ToIso(fixMod.EntryEndDate),
            modAmount::CentsToText(std::abs(fixMod.EntryValue)),
            fixMod.EntryComment};
}

} // namespace

cEntryItemFixModList cDataAccess::GetEntryMods(int entryId)
{
    cEntryItemFixModList fixMods;
    Read("GetEntryMods", [&] {
        cRows rows(m_database, std::string(modFixModRow::Select) + " WHERE EntryRelation = ?", {entryId});
        while (rows.Next()) {
            fixMods.append(modFixModRow::Read(rows));
        }
    });
    return fixMods;
}

bool cDataAccess::AddNewEntryMod(const cEntryItemFixMod& fixMod)
{
    return Write("AddNewEntryMod", [&] {
        const cBoundList key{fixMod.EntryRelation, modDate::ToIso(fixMod.EntryStartDate)};
        m_database.Execute("DELETE FROM datamod WHERE EntryRelation=? AND EntryStartDate=?", key);
        m_database.Execute(
            "INSERT INTO datamod (EntryRelation, EntryModType, EntryStartDate, EntryEndDate, EntryValue, "
            "EntryComment) VALUES (?, ?, ?, ?, ?, ?)",
            FixModValues(fixMod));
    });
}

bool cDataAccess::ChangeEntryMod(const cEntryItemFixMod& fixMod)
{
    return Write("ChangeEntryMod", [&] {
        cBoundList values = FixModValues(fixMod);
        values.emplace_back(fixMod.ID);
        m_database.Execute("UPDATE datamod SET EntryRelation=?, EntryModType=?, EntryStartDate=?, EntryEndDate=?, "
                           "EntryValue=?, EntryComment=? WHERE ID = ?",
                           values);
    });
}

bool cDataAccess::DeleteEntryMod(int id)
{
    // The one message without the description
    return Write("DeleteEntryMod", [&] { m_database.Execute("DELETE FROM datamod WHERE ID = ?", {id}); });
}

bool cDataAccess::DeleteEntryModByRelation(int entryId)
{
    return Write("DeleteEntryModByRelation",
                 [&] { m_database.Execute("DELETE FROM datamod WHERE EntryRelation = ?", {entryId}); });
}
