#include "faults/cPowerVfs.h"

#include "store/cVfsLayer.h"

#include <algorithm>

namespace {

constexpr int sector = 512; // bytes that a disk writes at once

struct cLoggedFile
{
    sqlite3_file Base; // first, because SQLite knows no more; the file of the system follows
    const char* Name;  // null: not written down
};

using cLayer = cVfsLayer<cLoggedFile>;

std::vector<cDiskCall> calls;
bool isWritingDown = false;

cLoggedFile& Of(sqlite3_file* file)
{
    return cLayer::Of(file);
}

sqlite3_file* Real(sqlite3_file* file)
{
    return cLayer::Real(file);
}

void Note(cDiskCall::eKind kind, const char* name, qint64 offset = 0, const QByteArray& bytes = {},
          bool isSynced = true)
{
    if (isWritingDown && name != nullptr) {
        calls.push_back({kind, QString::fromUtf8(name), offset, bytes, isSynced});
    }
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

const sqlite3_io_methods methods = [] {
    sqlite3_io_methods all = cLayer::Methods();
    all.iVersion = 1; // no memory shared between processes, which would not be written down
    all.xWrite = Write;
    all.xTruncate = Truncate;
    all.xSync = Sync;
    return all;
}();

bool IsThere(const char* name)
{
    int isThere = 0;
    return cLayer::Below()->xAccess(cLayer::Below(), name, SQLITE_ACCESS_EXISTS, &isThere) == SQLITE_OK && isThere != 0;
}

int Open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
{
    const bool isBook = (flags & (SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_MAIN_JOURNAL)) != 0;
    Of(file) = {{nullptr}, isBook ? name : nullptr};
    const bool isNew = isBook && name != nullptr && !IsThere(name);
    const int result = cLayer::Below()->xOpen(cLayer::Below(), name, Real(file), flags, outFlags);
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
    return cLayer::Below()->xDelete(cLayer::Below(), name, 0);
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
        sqlite3_vfs layer = cLayer::Over("power", Open);
        layer.xDelete = Delete;
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
