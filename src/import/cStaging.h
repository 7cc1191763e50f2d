#pragma once

class cImportHiveCache;
struct cImportEntry;

enum class eDuplicateTest { Test, Skip };
enum class eStaged { Staged, Zero, Duplicate, Failed };

// The one way into table `import`, shared by all readers and by the online fetch.
class cStaging
{
public:
    explicit cStaging(cImportHiveCache& hive) : m_hive(hive) {}

    // Normalises the record and stores it, unless its amount is exactly 0 or an equal row is already staged. On Staged
    // the record carries its ID. On Failed the user has already been told.
    [[nodiscard]] eStaged StageImportEntry(cImportEntry& entry, eDuplicateTest test);

private:
    cImportHiveCache& m_hive;
};
