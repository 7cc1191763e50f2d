#include "faults/cPowerVfs.h"

#include <sqlite3.h>

#include <algorithm>

namespace {

constexpr int sector = 512; // bytes that a disk writes at once

struct cLoggedFile
{
    sqlite3_file Base; // first, because SQLite knows no more; the file of the system follows
    const char* Name;  // null: not written down
};

sqlite3_vfs* below = nullptr;
std::vector<cDiskCall> calls;
bool isWritingDown = false;

cLoggedFile& Of(sqlite3_file* file)
{
    return *reinterpret_cast<cLoggedFile*>(file); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(&Of(file) + 1); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

void Note(cDiskCall::eKind kind, const char* name, qint64 offset = 0, const QByteArray& bytes = {},
          bool isSynced = true)
{
    if (isWritingDown && name != nullptr) {
        calls.push_back({kind, QString::fromUtf8(name), offset, bytes, isSynced});
    }
}

int Close(sqlite3_file* file)
{
    const int result = Real(file)->pMethods->xClose(Real(file));
    file->pMethods = nullptr;
    return result;
}

int Read(sqlite3_file* file, void* to, int amount, sqlite3_int64 offset)
{
    return Real(file)->pMethods->xRead(Real(file), to, amount, offset);
}

int Write(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset)
{
    Note(cDiskCall::eKind::Write, Of(file).Name, offset, QByteArray(static_cast<const char*>(from), amount));
    return Real(file)->pMethods->xWrite(Real(file), from, amount, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    Note(cDiskCall::eKind::Cut, Of(file).Name, size);
    return Real(file)->pMethods->xTruncate(Real(file), size);
}

int Sync(sqlite3_file* file, int)
{
    Note(cDiskCall::eKind::Sync, Of(file).Name);
    return SQLITE_OK; // the real disk need not wait
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

const sqlite3_io_methods methods = [] {
    sqlite3_io_methods all{};
    all.iVersion = 1;
    all.xClose = Close;
    all.xRead = Read;
    all.xWrite = Write;
    all.xTruncate = Truncate;
    all.xSync = Sync;
    all.xFileSize = FileSize;
    all.xLock = Lock;
    all.xUnlock = Unlock;
    all.xCheckReservedLock = CheckReservedLock;
    all.xFileControl = FileControl;
    all.xSectorSize = SectorSize;
    all.xDeviceCharacteristics = DeviceCharacteristics;
    return all;
}();

bool IsThere(const char* name)
{
    int isThere = 0;
    return below->xAccess(below, name, SQLITE_ACCESS_EXISTS, &isThere) == SQLITE_OK && isThere != 0;
}

int Open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
{
    const bool isBook = (flags & (SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_MAIN_JOURNAL)) != 0;
    Of(file) = {{nullptr}, isBook ? name : nullptr};
    const bool isNew = isBook && name != nullptr && !IsThere(name);
    const int result = below->xOpen(below, name, Real(file), flags, outFlags);
    if (Real(file)->pMethods == nullptr) {
        return result;
    }
    file->pMethods = &methods;
    if (isNew) {
        Note(cDiskCall::eKind::Create, Of(file).Name);
    }
    return result;
}

int Delete(sqlite3_vfs*, const char* name, int isFolderSynced)
{
    Note(cDiskCall::eKind::Remove, name, 0, {}, isFolderSynced != 0);
    return below->xDelete(below, name, 0);
}

template <auto tMember, typename... tArguments>
auto PassOn(sqlite3_vfs*, tArguments... arguments)
{
    return (below->*tMember)(below, arguments...);
}

void Apply(const cDiskCall& call, QByteArray& content, qsizetype part)
{
    if (call.Kind == cDiskCall::eKind::Cut) {
        content.resize(call.Offset);
        return;
    }
    const qsizetype end = call.Offset + part;
    if (content.size() < end) {
        content.append(QByteArray(end - content.size(), '\0'));
    }
    std::copy_n(call.Bytes.begin(), part, content.begin() + call.Offset);
}

} // namespace

void modPowerVfs::Install()
{
    static sqlite3_vfs vfs = [] {
        below = sqlite3_vfs_find(nullptr);
        sqlite3_vfs layer = *below;
        layer.iVersion = 2;
        layer.szOsFile = static_cast<int>(sizeof(cLoggedFile)) + below->szOsFile;
        layer.pNext = nullptr;
        layer.zName = "power";
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
    sqlite3_vfs_register(&vfs, 1);
}

void modPowerVfs::Start()
{
    calls.clear();
    isWritingDown = true;
}

std::vector<cDiskCall> modPowerVfs::Calls()
{
    return calls;
}

cPowerDisk::cPowerDisk(const cFiles& synced)
{
    for (auto file = synced.begin(); file != synced.end(); ++file) {
        m_files.insert(file.key(), {*file, {}, true, false});
    }
}

void cPowerDisk::Take(const cDiskCall& call)
{
    cFile& file = m_files[call.Path];
    switch (call.Kind) {
    case cDiskCall::eKind::Create: file = {}; break;
    case cDiskCall::eKind::Write:
    case cDiskCall::eKind::Cut: file.Pending.push_back(call); break;
    case cDiskCall::eKind::Sync:
        for (const cDiskCall& pending : file.Pending) {
            Apply(pending, file.Synced, pending.Bytes.size());
        }
        file.Pending.clear();
        file.IsEntrySynced = true;
        break;
    case cDiskCall::eKind::Remove:
        if (call.IsSynced) {
            m_files.remove(call.Path);
        } else {
            file.IsRemoved = true;
        }
        break;
    }
}

cPowerDisk::cFiles cPowerDisk::Cut(QRandomGenerator& random) const
{
    cFiles left;
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if ((!file->IsEntrySynced || file->IsRemoved) && random.bounded(2) == 0) {
            continue;
        }
        QByteArray content = file->Synced;
        for (const cDiskCall& call : file->Pending) {
            const auto sectors = static_cast<int>(call.Bytes.size() / sector);
            switch (random.bounded(3)) {
            case 0: break;
            case 1: Apply(call, content, call.Bytes.size()); break;
            default:
                Apply(call, content, qMin(call.Bytes.size(), qsizetype{random.bounded(sectors + 1)} * sector));
                break;
            }
        }
        left.insert(file.key(), content);
    }
    return left;
}
