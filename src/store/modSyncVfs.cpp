#include "store/modSyncVfs.h"

#include "store/cVfsLayer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

enum class eKind { Other, Book, Journal };

// A journal begins with these bytes and the number of its records. SQLite writes "all there are" for it when it does
// not sync, and what has not reached the disk would be played back as well; so the number is held back until the
// records are on the disk. See https://www.sqlite.org/fileformat2.html#the_rollback_journal for both.
constexpr std::size_t magicSize = 8;
constexpr std::size_t headSize = magicSize + 4;
constexpr std::array<unsigned char, magicSize> magic{0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7};

// What SQLite takes for an open file. The file of the system lies directly behind it.
struct cSyncFile
{
    sqlite3_file Base; // first, because SQLite knows no more
    eKind Kind;
    bool IsUnsynced;                          // written since the last sync
    bool IsChanged;                           // a book that was written since its journal went last
    bool IsHeld;                              // a journal whose beginning was held back
    const char* Name;                         // of SQLite; lives as long as the file is open
    std::array<unsigned char, headSize> Head; // of the journal as SQLite wrote it
    sqlite3_int64 FirstRecord;                // place of the first record, in bytes
    sqlite3_int64 RecordSize;
};

constexpr std::string_view journalEnding = "-journal";

using cLayer = cVfsLayer<cSyncFile>;

std::recursive_mutex openGuard; // connections may belong to several threads
std::vector<cSyncFile*> openFiles;

cSyncFile& Of(sqlite3_file* file)
{
    return cLayer::Of(file);
}

sqlite3_file* Real(sqlite3_file* file)
{
    return cLayer::Real(file);
}

int SyncFile(sqlite3_file* file)
{
    const int result = Real(file)->pMethods->xSync(Real(file), SQLITE_SYNC_NORMAL);
    if (result == SQLITE_OK) {
        Of(file).IsUnsynced = false;
    }
    return result;
}

sqlite3_int64 NumberAt(const unsigned char* bytes)
{
    return (sqlite3_int64{bytes[0]} << 24U) | (sqlite3_int64{bytes[1]} << 16U) | (sqlite3_int64{bytes[2]} << 8U)
        | sqlite3_int64{bytes[3]};
}

// Writes the beginning of a journal once its records are on the disk: with the number of those that are.
int WriteHead(sqlite3_file* file)
{
    sqlite3_int64 size = 0;
    if (const int result = Real(file)->pMethods->xFileSize(Real(file), &size); result != SQLITE_OK) {
        return result;
    }
    std::array<unsigned char, headSize> head = Of(file).Head;
    const sqlite3_int64 records = std::max(sqlite3_int64{0}, (size - Of(file).FirstRecord) / Of(file).RecordSize);
    for (std::size_t i = 0; i < 4; ++i) {
        head[headSize - 1 - i] = static_cast<unsigned char>(records >> (8U * i));
    }
    return Real(file)->pMethods->xWrite(Real(file), head.data(), headSize, 0);
}

int SyncJournal(sqlite3_file* file)
{
    int result = SyncFile(file);
    if (result == SQLITE_OK && Of(file).IsHeld) {
        result = WriteHead(file);
        result = result == SQLITE_OK ? SyncFile(file) : result;
    }
    return result;
}

// Syncs what was written to the open files of this kind and name.
int SyncAll(eKind kind, std::string_view name)
{
    const std::lock_guard lock(openGuard);
    for (cSyncFile* file : openFiles) {
        if (file->Kind == kind && file->IsUnsynced && name == file->Name) {
            const int result = kind == eKind::Journal ? SyncJournal(&file->Base) : SyncFile(&file->Base);
            if (result != SQLITE_OK) {
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
    const std::lock_guard lock(openGuard);
    openFiles.erase(std::remove(openFiles.begin(), openFiles.end(), &Of(file)), openFiles.end());
    const int synced = Of(file).Kind == eKind::Book && Of(file).IsUnsynced ? SyncFile(file) : SQLITE_OK;
    const int closed = cLayer::Close(file);
    return synced != SQLITE_OK ? synced : closed;
}

int Read(sqlite3_file* file, void* to, int amount, sqlite3_int64 offset)
{
    const int result = Real(file)->pMethods->xRead(Real(file), to, amount, offset);
    if (Of(file).IsHeld && result == SQLITE_OK && offset < sqlite3_int64{headSize}) {
        // Whoever has written a journal takes back by all of it, synced or not.
        const auto from = static_cast<std::size_t>(offset);
        const std::size_t count = std::min(headSize - from, static_cast<std::size_t>(amount));
        std::copy_n(Of(file).Head.begin() + offset, count, static_cast<unsigned char*>(to));
    }
    return result;
}

// The beginning of a journal: noted, and nothing of it that would make it count.
int WriteHeld(sqlite3_file* file, const unsigned char* from, int amount)
{
    constexpr std::size_t sectorPlace = 20;
    constexpr std::size_t pagePlace = 24;
    constexpr sqlite3_int64 aroundPage = 8; // number of the page and checksum
    cSyncFile& journal = Of(file);
    std::copy_n(from, headSize, journal.Head.begin());
    journal.FirstRecord = NumberAt(from + sectorPlace);
    journal.RecordSize = NumberAt(from + pagePlace) + aroundPage;
    journal.IsHeld = true;
    std::vector<unsigned char> bytes(from, from + amount);
    std::fill_n(bytes.begin(), headSize, static_cast<unsigned char>(0));
    return Real(file)->pMethods->xWrite(Real(file), bytes.data(), amount, 0);
}

bool IsHead(const cSyncFile& file, const unsigned char* bytes, int amount, sqlite3_int64 offset)
{
    constexpr int smallest = 28;
    return file.Kind == eKind::Journal && offset == 0 && amount >= smallest
        && std::equal(magic.begin(), magic.end(), bytes);
}

void NoteChange(cSyncFile& file)
{
    file.IsUnsynced = file.Kind != eKind::Other;
    file.IsChanged = file.Kind == eKind::Book;
}

int Write(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset)
{
    if (const int result = SyncBefore(Of(file), false); result != SQLITE_OK) {
        return result;
    }
    NoteChange(Of(file));
    const auto* bytes = static_cast<const unsigned char*>(from);
    return IsHead(Of(file), bytes, amount, offset) ? WriteHeld(file, bytes, amount)
                                                   : Real(file)->pMethods->xWrite(Real(file), from, amount, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    if (const int result = SyncBefore(Of(file), true); result != SQLITE_OK) {
        return result;
    }
    NoteChange(Of(file));
    Of(file).IsHeld = Of(file).IsHeld && size > 0;
    return Real(file)->pMethods->xTruncate(Real(file), size);
}

int Sync(sqlite3_file* file, int flags)
{
    Of(file).IsUnsynced = false;
    return Real(file)->pMethods->xSync(Real(file), flags);
}

const sqlite3_io_methods methods = [] {
    sqlite3_io_methods all = cLayer::Methods();
    all.xClose = Close;
    all.xRead = Read;
    all.xWrite = Write;
    all.xTruncate = Truncate;
    all.xSync = Sync;
    return all;
}();

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
    opened = {{nullptr}, name == nullptr ? eKind::Other : KindOf(flags), false, false, false, name, {}, 0, 0};
    const int result = cLayer::Below()->xOpen(cLayer::Below(), name, Real(file), flags, outFlags);
    if (Real(file)->pMethods == nullptr) {
        return result;
    }
    file->pMethods = &methods;
    if (opened.Kind != eKind::Other) {
        const std::lock_guard lock(openGuard);
        openFiles.push_back(&opened);
    }
    return result;
}

int Delete(sqlite3_vfs*, const char* name, int isDirectorySynced)
{
    sqlite3_vfs* below = cLayer::Below();
    const std::string_view path(name);
    const bool isJournal =
        path.size() > journalEnding.size() && path.substr(path.size() - journalEnding.size()) == journalEnding;
    if (!isJournal) {
        return below->xDelete(below, name, isDirectorySynced);
    }
    const std::lock_guard lock(openGuard);
    const std::string_view book = BookOf(path);
    if (const int result = SyncAll(eKind::Book, book); result != SQLITE_OK) {
        return result;
    }
    // A journal that comes back after a power cut does no harm to a book that has not changed, and most starts only try
    // whether they could write.
    bool isChanged = false;
    for (cSyncFile* file : openFiles) {
        if (file->Kind == eKind::Book && book == file->Name) {
            isChanged = std::exchange(file->IsChanged, false) || isChanged;
        }
    }
    return below->xDelete(below, name, isChanged ? 1 : isDirectorySynced);
}

} // namespace

const char* modSyncVfs::Name()
{
    static sqlite3_vfs vfs = [] {
        sqlite3_vfs layer = cLayer::Over("kontorelle-sync", Open);
        layer.xDelete = Delete;
        return layer;
    }();
    static const int registered = sqlite3_vfs_register(&vfs, 0);
    return registered == SQLITE_OK ? vfs.zName : nullptr; // null: the default, unordered but working
}
