#pragma once

#include "import/stage/cImportHive.h"

#include <QStringList>

#include <optional>

class cImportHiveCache;
struct cImportEntry;

enum class eDuplicateTest { Test, Skip };
enum class eStaged { Staged, Zero, Duplicate, Failed };
enum class eKeepCache;
enum class eStagingRun { Write, Try };

// The one way into table `import`, shared by all readers and by the online fetch.
class cStaging
{
public:
    // With eStagingRun::Try nothing is written; the object remembers the rows that it would have stored, so that it
    // answers as if it had.
    explicit cStaging(cImportHiveCache& hive, eStagingRun run = eStagingRun::Write);

    // Normalises the record and stores it, unless its amount is exactly 0 or an equal row is already staged. On Staged
    // the record carries its ID (0 when nothing is written). On Failed the user has already been told.
    [[nodiscard]] eStaged StageImportEntry(cImportEntry& entry, eDuplicateTest test);

    // Whether an equal row is staged, or one that differs in nothing but blanks, before StartSource was called last.
    // The record has to be normalised.
    [[nodiscard]] eKnown Find(const cImportEntry& entry);
    // The staged rows that are equal, or equal but for blanks.
    [[nodiscard]] cImportEntryList AllButBlanks(const cImportEntry& entry);
    [[nodiscard]] cImportEntryList Rows(); // all that are staged
    // The records of another file follow. What one source tells apart, if only by a blank, are two transactions.
    void StartSource(qsizetype rows);

    // The own account numbers of the staged rows, in the order of the rows. Asked before the records of a file are
    // staged, because it also looks for what other programs have written; the single records do not.
    [[nodiscard]] QStringList Accounts();

private:
    [[nodiscard]] const cImportHive& Hive(eKeepCache keepCache);
    [[nodiscard]] bool Add(cImportEntry& entry);

    cImportHiveCache& m_hive;
    std::optional<cImportHive> m_trial;
    int m_newest = 0; // row before the present source
};
