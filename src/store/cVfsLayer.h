#pragma once

#include <sqlite3.h>

#include <algorithm>

// A layer between SQLite and the files of the system. A file of the layer is a tFile, which begins with what SQLite
// knows of it; the file of the system lies directly behind it. What a layer does not do itself goes on to that.
template <typename tFile>
class cVfsLayer
{
public:
    [[nodiscard]] static tFile& Of(sqlite3_file* file)
    {
        return *reinterpret_cast<tFile*>(file); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
    }

    [[nodiscard]] static sqlite3_file* Real(sqlite3_file* file)
    {
        return reinterpret_cast<sqlite3_file*>(&Of(file) + 1); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
    }

    // The calls on a file, all of them passed on, in the second version of the interface: without memory mapping, which
    // would write past the layer.
    [[nodiscard]] static sqlite3_io_methods Methods()
    {
        sqlite3_io_methods all{};
        all.iVersion = 2;
        all.xClose = Close;
        all.xRead = PassOn<&sqlite3_io_methods::xRead>;
        all.xWrite = PassOn<&sqlite3_io_methods::xWrite>;
        all.xTruncate = PassOn<&sqlite3_io_methods::xTruncate>;
        all.xSync = PassOn<&sqlite3_io_methods::xSync>;
        all.xFileSize = PassOn<&sqlite3_io_methods::xFileSize>;
        all.xLock = PassOn<&sqlite3_io_methods::xLock>;
        all.xUnlock = PassOn<&sqlite3_io_methods::xUnlock>;
        all.xCheckReservedLock = PassOn<&sqlite3_io_methods::xCheckReservedLock>;
        all.xFileControl = PassOn<&sqlite3_io_methods::xFileControl>;
        all.xSectorSize = PassOn<&sqlite3_io_methods::xSectorSize>;
        all.xDeviceCharacteristics = PassOn<&sqlite3_io_methods::xDeviceCharacteristics>;
        all.xShmMap = PassOn<&sqlite3_io_methods::xShmMap>;
        all.xShmLock = PassOn<&sqlite3_io_methods::xShmLock>;
        all.xShmBarrier = PassOn<&sqlite3_io_methods::xShmBarrier>;
        all.xShmUnmap = PassOn<&sqlite3_io_methods::xShmUnmap>;
        return all;
    }

    // The layer over what is the default now, to be registered by the caller; it passes on all but opening, which is
    // the layer's own.
    [[nodiscard]] static sqlite3_vfs Over(const char* name, decltype(sqlite3_vfs::xOpen) open)
    {
        s_below = sqlite3_vfs_find(nullptr);
        sqlite3_vfs layer = *s_below;
        layer.iVersion = std::min(s_below->iVersion, 2);
        layer.szOsFile = static_cast<int>(sizeof(tFile)) + s_below->szOsFile;
        layer.pNext = nullptr;
        layer.zName = name;
        layer.xOpen = open;
        layer.xDelete = PassDown<&sqlite3_vfs::xDelete>;
        layer.xAccess = PassDown<&sqlite3_vfs::xAccess>;
        layer.xFullPathname = PassDown<&sqlite3_vfs::xFullPathname>;
        layer.xRandomness = PassDown<&sqlite3_vfs::xRandomness>;
        layer.xSleep = PassDown<&sqlite3_vfs::xSleep>;
        layer.xCurrentTime = PassDown<&sqlite3_vfs::xCurrentTime>;
        layer.xGetLastError = PassDown<&sqlite3_vfs::xGetLastError>;
        layer.xCurrentTimeInt64 = PassDown<&sqlite3_vfs::xCurrentTimeInt64>;
        return layer;
    }

    [[nodiscard]] static sqlite3_vfs* Below() { return s_below; }

    static int Close(sqlite3_file* file)
    {
        const int result = Real(file)->pMethods->xClose(Real(file));
        file->pMethods = nullptr;
        return result;
    }

private:
    template <auto tMember, typename... tArguments>
    static auto PassOn(sqlite3_file* file, tArguments... arguments)
    {
        return (Real(file)->pMethods->*tMember)(Real(file), arguments...);
    }

    template <auto tMember, typename... tArguments>
    static auto PassDown(sqlite3_vfs*, tArguments... arguments)
    {
        return (s_below->*tMember)(s_below, arguments...);
    }

    inline static sqlite3_vfs* s_below = nullptr;
};
