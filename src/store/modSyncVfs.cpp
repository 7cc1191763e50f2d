#include "store/modSyncVfs.h"

#include <sqlite3.h>

#include <algorithm>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace {

enum class eKind { Other, Book, Journal };

// What SQLite takes for an open file. The file of the system lies directly behind it.
struct cSyncFile
{
    sqlite3_file Base; // first, because SQLite knows no more
    eKind Kind;
    bool IsUnsynced;  // written since the last sync
    const char* Name; // of SQLite; lives as long as the file is open
};

constexpr std::string_view journalEnding = "-journal";

sqlite3_vfs* system_ = nullptr;
std::recursive_mutex mutex_; // connections may belong to several threads
std::vector<cSyncFile*> open_;

cSyncFile& Of(sqlite3_file* file)
{
    return *reinterpret_cast<cSyncFile*>(file); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(&Of(file) + 1); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

int SyncFile(sqlite3_file* file)
{
    const int result = Real(file)->pMethods->xSync(Real(file), SQLITE_SYNC_NORMAL);
    if (result == SQLITE_OK) {
        Of(file).IsUnsynced = false;
    }
    return result;
}

// Syncs what was written to the open files of this kind and name.
int SyncAll(eKind kind, std::string_view name)
{
    const std::lock_guard lock(mutex_);
    for (cSyncFile* file : open_) {
        if (file->Kind == kind && file->IsUnsynced && name == file->Name) {
            if (const int result = SyncFile(&file->Base); result != SQLITE_OK) {
                return result;
            }
        }
    }
    return SQLITE_OK;
}

std::string_view BookOf(std::string_view journal)
{
    return journal.substr(0, journal.size() - journalEnding.size());
}

// What has to be on the disk before a file is changed: the journal before the book, and the book before the journal is
// cut, which is a commit.
int SyncBefore(const cSyncFile& file, bool isCut)
{
    if (file.Kind == eKind::Book) {
        return SyncAll(eKind::Journal, std::string(file.Name) + std::string(journalEnding));
    }
    return file.Kind == eKind::Journal && isCut ? SyncAll(eKind::Book, BookOf(file.Name)) : SQLITE_OK;
}

int Close(sqlite3_file* file)
{
    const std::lock_guard lock(mutex_);
    open_.erase(std::remove(open_.begin(), open_.end(), &Of(file)), open_.end());
    const int synced = Of(file).Kind == eKind::Book && Of(file).IsUnsynced ? SyncFile(file) : SQLITE_OK;
    const int closed = Real(file)->pMethods->xClose(Real(file));
    file->pMethods = nullptr;
    return synced != SQLITE_OK ? synced : closed;
}

int Read(sqlite3_file* file, void* to, int amount, sqlite3_int64 offset)
{
    return Real(file)->pMethods->xRead(Real(file), to, amount, offset);
}

int Write(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset)
{
    if (const int result = SyncBefore(Of(file), false); result != SQLITE_OK) {
        return result;
    }
    Of(file).IsUnsynced = Of(file).Kind != eKind::Other;
    return Real(file)->pMethods->xWrite(Real(file), from, amount, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    if (const int result = SyncBefore(Of(file), true); result != SQLITE_OK) {
        return result;
    }
    Of(file).IsUnsynced = Of(file).Kind != eKind::Other;
    return Real(file)->pMethods->xTruncate(Real(file), size);
}

int Sync(sqlite3_file* file, int flags)
{
    Of(file).IsUnsynced = false;
    return Real(file)->pMethods->xSync(Real(file), flags);
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return Real(file)->pMethods->xFileSize(Real(file), size);
}

int Lock(sqlite3_file* file, int level)
{
    return Real(file)->pMethods->xLock(Real(file), level);
}

int Unlock(sqlite3_file* file, int level)
{
    return Real(file)->pMethods->xUnlock(Real(file), level);
}

int CheckReservedLock(sqlite3_file* file, int* isReserved)
{
    return Real(file)->pMethods->xCheckReservedLock(Real(file), isReserved);
}

int FileControl(sqlite3_file* file, int operation, void* argument)
{
    return Real(file)->pMethods->xFileControl(Real(file), operation, argument);
}

int SectorSize(sqlite3_file* file)
{
    return Real(file)->pMethods->xSectorSize(Real(file));
}

int DeviceCharacteristics(sqlite3_file* file)
{
    return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

int ShmMap(sqlite3_file* file, int page, int size, int isExtended, void volatile** memory)
{
    return Real(file)->pMethods->xShmMap(Real(file), page, size, isExtended, memory);
}

int ShmLock(sqlite3_file* file, int offset, int count, int flags)
{
    return Real(file)->pMethods->xShmLock(Real(file), offset, count, flags);
}

void ShmBarrier(sqlite3_file* file)
{
    Real(file)->pMethods->xShmBarrier(Real(file));
}

int ShmUnmap(sqlite3_file* file, int isDeleted)
{
    return Real(file)->pMethods->xShmUnmap(Real(file), isDeleted);
}

// The second version of the interface: without memory mapping, which would write past this layer.
constexpr sqlite3_io_methods methods{2,
                                     Close,
                                     Read,
                                     Write,
                                     Truncate,
                                     Sync,
                                     FileSize,
                                     Lock,
                                     Unlock,
                                     CheckReservedLock,
                                     FileControl,
                                     SectorSize,
                                     DeviceCharacteristics,
                                     ShmMap,
                                     ShmLock,
                                     ShmBarrier,
                                     ShmUnmap,
                                     nullptr,
                                     nullptr};

eKind KindOf(int flags)
{
    if ((flags & SQLITE_OPEN_MAIN_DB) != 0) {
        return eKind::Book;
    }
    return (flags & SQLITE_OPEN_MAIN_JOURNAL) != 0 ? eKind::Journal : eKind::Other;
}

int Open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
{
    cSyncFile& opened = Of(file);
    opened = {{nullptr}, name == nullptr ? eKind::Other : KindOf(flags), false, name};
    const int result = system_->xOpen(system_, name, Real(file), flags, outFlags);
    if (Real(file)->pMethods == nullptr) {
        return result;
    }
    file->pMethods = &methods;
    if (opened.Kind != eKind::Other) {
        const std::lock_guard lock(mutex_);
        open_.push_back(&opened);
    }
    return result;
}

int Delete(sqlite3_vfs*, const char* name, int isDirectorySynced)
{
    const std::string_view path(name);
    const bool isJournal =
        path.size() > journalEnding.size() && path.substr(path.size() - journalEnding.size()) == journalEnding;
    if (!isJournal) {
        return system_->xDelete(system_, name, isDirectorySynced);
    }
    const int result = SyncAll(eKind::Book, BookOf(path));
    return result == SQLITE_OK ? system_->xDelete(system_, name, 1) : result;
}

// Everything else goes on to the system's own functions, which ask for themselves.
template <auto tMember, typename... tArguments>
auto PassOn(sqlite3_vfs*, tArguments... arguments)
{
    return (system_->*tMember)(system_, arguments...);
}

} // namespace

const char* modSyncVfs::Name()
{
    static sqlite3_vfs vfs = [] {
        system_ = sqlite3_vfs_find(nullptr);
        sqlite3_vfs layer = *system_;
        layer.iVersion = std::min(system_->iVersion, 2);
        layer.szOsFile = static_cast<int>(sizeof(cSyncFile)) + system_->szOsFile;
        layer.pNext = nullptr;
        layer.zName = "kontorelle-sync";
        layer.xOpen = Open;
        layer.xDelete = Delete;
        layer.xAccess = PassOn<&sqlite3_vfs::xAccess>;
        layer.xFullPathname = PassOn<&sqlite3_vfs::xFullPathname>;
        layer.xRandomness = PassOn<&sqlite3_vfs::xRandomness>;
        layer.xSleep = PassOn<&sqlite3_vfs::xSleep>;
        layer.xCurrentTime = PassOn<&sqlite3_vfs::xCurrentTime>;
        layer.xGetLastError = PassOn<&sqlite3_vfs::xGetLastError>;
        layer.xCurrentTimeInt64 = PassOn<&sqlite3_vfs::xCurrentTimeInt64>;
        return layer;
    }();
    static const int registered = sqlite3_vfs_register(&vfs, 0);
    return registered == SQLITE_OK ? vfs.zName : nullptr; // null: the default, unordered but working
}
