#pragma once

#include "import/stage/cImportHive.h"
#include "model/cImportEntry.h"

class cDataAccess;

// FromOthers: writes of other connections are not looked for, which costs a look into the file each time.
enum class eKeepCache { No, FromOthers, Yes };

// The program's one view of table `import`. Writes that go through it are applied in memory; writes of others are
// noticed by the next access.
class cImportHiveCache
{
public:
    explicit cImportHiveCache(cDataAccess& data);

    // The staged rows. With eKeepCache::Yes the rows of the last access, even when the table has changed since. The
    // reference holds until the next call of this object.
    [[nodiscard]] const cImportHive& GetImportHive(eKeepCache keepCache = eKeepCache::No);

    // The writes of table `import`. False, and nothing changed, when the database refuses; the user has then been told.
    [[nodiscard]] bool Add(cImportEntry& entry); // sets entry.ID
    [[nodiscard]] bool Change(const cImportEntry& entry);
    [[nodiscard]] bool Remove(int id);
    // Removes rows until the database refuses, and gives the number of those that are gone.
    [[nodiscard]] int Remove(const QList<int>& ids);

private:
    [[nodiscard]] bool IsGoodEnough(eKeepCache keepCache);
    // Runs a write; `apply` brings the hive in step when nobody else has written in between.
    template <typename tWrite, typename tApply>
    [[nodiscard]] bool Write(const tWrite& write, const tApply& apply);

    cDataAccess& m_data;
    cImportHive m_hive;
    bool m_isLoaded = false;
    quint64 m_version = 0; // of the table when the rows were read, one further with each write applied since
};
