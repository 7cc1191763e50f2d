// Loaded before a program (LD_PRELOAD), it counts the calls that change files, and lets one of them go wrong:
//   FAULT_AT     number of the call, from 1; without it all go well
//   FAULT_KIND   kill: the program is killed before the call; torn: after half of the write; full, broken: the call
//                fails with "no space left" or with an input/output error, and so do all that follow
//   FAULT_COUNT  file to which the number of calls is written at the end
//   FAULT_WAIT   1: nothing is counted until the program calls BeginFaults()
// Calls on the standard streams, pipes and /dev are left alone.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum class eWay { Well, Fails, Torn };

long calls = 0;

const char* Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool IsKind(const char* kind)
{
    static const char* wanted = Variable("FAULT_KIND");
    return std::strcmp(wanted, kind) == 0;
}

bool isWaiting = *Variable("FAULT_WAIT") != '\0';

// How the present call goes.
eWay Next(bool isWrite)
{
    if (isWaiting) {
        return eWay::Well;
    }
    static const long at = std::strtol(Variable("FAULT_AT"), nullptr, 10);
    ++calls;
    if (at == 0 || calls < at) {
        return eWay::Well;
    }
    if (IsKind("torn") && isWrite) {
        return eWay::Torn;
    }
    if (IsKind("kill") || IsKind("torn")) {
        kill(getpid(), SIGKILL);
    }
    errno = IsKind("full") ? ENOSPC : EIO;
    return eWay::Fails;
}

bool IsFile(int file)
{
    struct stat state
    {
    };
    return file > 2 && fstat(file, &state) == 0 && S_ISREG(state.st_mode);
}

template <typename tFunction>
tFunction* Real(const char* name)
{
    return reinterpret_cast<tFunction*>(dlsym(RTLD_NEXT, name)); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

struct cReport
{
    ~cReport()
    {
        const char* path = Variable("FAULT_COUNT");
        if (*path != '\0') {
            if (FILE* file = std::fopen(path, "w")) {
                (void)std::fprintf(file, "%ld", calls);
                (void)std::fclose(file);
            }
        }
    }
} report;

} // namespace

#pragma GCC diagnostic ignored "-Wmissing-declarations"
// The system's own names for the parameters begin with underscores.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

extern "C" {

void BeginFaults()
{
    isWaiting = false;
}

ssize_t write(int file, const void* bytes, size_t size)
{
    static auto* real = Real<decltype(write)>("write");
    const eWay way = IsFile(file) ? Next(true) : eWay::Well;
    if (way == eWay::Torn) {
        (void)real(file, bytes, size / 2);
        kill(getpid(), SIGKILL);
    }
    return way == eWay::Fails ? -1 : real(file, bytes, size);
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t offset)
{
    static auto* real = Real<decltype(pwrite64)>("pwrite64");
    const eWay way = IsFile(file) ? Next(true) : eWay::Well;
    if (way == eWay::Torn) {
        (void)real(file, bytes, size / 2, offset);
        kill(getpid(), SIGKILL);
    }
    return way == eWay::Fails ? -1 : real(file, bytes, size, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset)
{
    return pwrite64(file, bytes, size, offset);
}

int ftruncate64(int file, off64_t size) noexcept
{
    static auto* real = Real<decltype(ftruncate64)>("ftruncate64");
    return Next(false) == eWay::Fails ? -1 : real(file, size);
}

int ftruncate(int file, off_t size) noexcept
{
    return ftruncate64(file, size);
}

int fsync(int file)
{
    static auto* real = Real<decltype(fsync)>("fsync");
    return Next(false) == eWay::Fails ? -1 : real(file);
}

int fdatasync(int file)
{
    static auto* real = Real<decltype(fdatasync)>("fdatasync");
    return Next(false) == eWay::Fails ? -1 : real(file);
}

// A full or broken disk still removes files; only a kill comes between.
int unlink(const char* path) noexcept
{
    static auto* real = Real<decltype(unlink)>("unlink");
    (void)Next(false);
    return real(path);
}

int rename(const char* from, const char* to) noexcept
{
    static auto* real = Real<decltype(rename)>("rename");
    return Next(false) == eWay::Fails ? -1 : real(from, to);
}

// How the toolkit gives a file another name that nobody has.
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    static auto* real = Real<decltype(renameat2)>("renameat2");
    return Next(false) == eWay::Fails ? -1 : real(fromFolder, from, toFolder, to, flags);
}

// How the toolkit copies files.
ssize_t sendfile64(int to, int from, off64_t* offset, size_t size) noexcept
{
    static auto* real = Real<decltype(sendfile64)>("sendfile64");
    const eWay way = IsFile(to) ? Next(true) : eWay::Well;
    if (way == eWay::Torn) {
        (void)real(to, from, offset, size / 2);
        kill(getpid(), SIGKILL);
    }
    return way == eWay::Fails ? -1 : real(to, from, offset, size);
}

ssize_t sendfile(int to, int from, off_t* offset, size_t size) noexcept
{
    return sendfile64(to, from, offset, size);
}

int link(const char* from, const char* to) noexcept
{
    static auto* real = Real<decltype(link)>("link");
    return Next(false) == eWay::Fails ? -1 : real(from, to);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
