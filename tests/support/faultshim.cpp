// Preloaded into a test program, this library fails or kills it at the n-th call that changes a
// file under one folder. The program arms it with ivorel_fault_arm(); the rest comes from the
// environment: IVOREL_FAULT_ROOT the folder, IVOREL_FAULT_AT the number of the call,
// IVOREL_FAULT_MODE one of "kill", "once" (that call fails), "passing" (it and the next two fail),
// "full" (it and all later ones that need space fail), "refused" (it and all later ones fail) and
// "busy" (the same, but for syncs, which may be of files elsewhere). Syncs that do not fail are
// left out, for speed.

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int maxHandles = 4096;
bool tracked[maxHandles]; // handles of files under the folder that are open for writing
const char *root = nullptr;
long failAt = 0;
long calls = 0;
bool fired = false;
enum class Mode
{
    Kill,
    Once,
    Passing,
    Full,
    Refused,
    Busy
} mode = Mode::Once;

template<typename Function>
Function real(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name)); // NOLINT: the loader knows no types
}

bool isUnder(const char *path)
{
    return root && path && std::strncmp(path, root, std::strlen(root)) == 0;
}

bool isTracked(int handle)
{
    return handle >= 0 && handle < maxHandles && tracked[handle];
}

/// Whether the call that is about to be made fails; errno is set then.
bool fails(bool needsSpace = true)
{
    if (!root)
        return false;
    ++calls;
    if (calls < failAt || (calls > failAt && mode == Mode::Once)
        || (calls > failAt + 2 && mode == Mode::Passing))
        return false;
    if (mode == Mode::Full && !needsSpace)
        return false;
    fired = true;
    if (mode == Mode::Kill)
        kill(getpid(), SIGKILL);
    errno = mode == Mode::Full      ? ENOSPC
            : mode == Mode::Refused ? EACCES
            : mode == Mode::Busy    ? EBUSY
                                    : EIO;
    return true;
}

bool syncFails()
{
    return mode != Mode::Busy && fails();
}

int opened(int handle, bool forWriting)
{
    if (handle >= 0 && handle < maxHandles)
        tracked[handle] = forWriting;
    return handle;
}

bool isForWriting(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

int openAny(const char *name, const char *path, int flags, mode_t permissions)
{
    const bool counts = isUnder(path) && isForWriting(flags);
    if (counts && fails())
        return -1;
    return opened(real<int (*)(const char *, int, ...)>(name)(path, flags, permissions), counts);
}

mode_t permissionsIn(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? mode_t(va_arg(arguments, int)) : 0;
}

} // namespace

extern "C" {

void ivorel_fault_arm()
{
    const char *at = std::getenv("IVOREL_FAULT_AT");
    const char *wanted = std::getenv("IVOREL_FAULT_MODE");
    failAt = at ? std::strtol(at, nullptr, 10) : 0;
    if (wanted && std::strcmp(wanted, "kill") == 0)
        mode = Mode::Kill;
    if (wanted && std::strcmp(wanted, "passing") == 0)
        mode = Mode::Passing;
    if (wanted && std::strcmp(wanted, "full") == 0)
        mode = Mode::Full;
    if (wanted && std::strcmp(wanted, "refused") == 0)
        mode = Mode::Refused;
    if (wanted && std::strcmp(wanted, "busy") == 0)
        mode = Mode::Busy;
    root = failAt > 0 ? std::getenv("IVOREL_FAULT_ROOT") : nullptr;
}

int ivorel_fault_fired()
{
    root = nullptr;
    return fired ? 1 : 0;
}

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t permissions = permissionsIn(flags, arguments);
    va_end(arguments);
    return openAny("open", path, flags, permissions);
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t permissions = permissionsIn(flags, arguments);
    va_end(arguments);
    return openAny("open64", path, flags, permissions);
}

ssize_t write(int handle, const void *bytes, size_t size)
{
    const auto next = real<ssize_t (*)(int, const void *, size_t)>("write");
    if (!isTracked(handle))
        return next(handle, bytes, size);
    if (root && mode == Mode::Kill && calls + 1 == failAt && next(handle, bytes, size / 2) < 0)
        return -1; // half of it reaches the file
    if (fails())
        return -1;
    return next(handle, bytes, size);
}

int fsync(int handle)
{
    return syncFails() ? -1 : 0 * handle;
}

int fdatasync(int handle)
{
    return syncFails() ? -1 : 0 * handle;
}

int syncfs(int handle) noexcept
{
    return syncFails() ? -1 : 0 * handle;
}

int close(int handle)
{
    const auto next = real<int (*)(int)>("close");
    if (!isTracked(handle))
        return next(handle);
    tracked[handle] = false;
    const bool failing = fails(false);
    const int reason = errno;
    const int result = next(handle);
    if (!failing)
        return result;
    errno = reason;
    return -1;
}

int ftruncate(int handle, off_t size) noexcept
{
    if (isTracked(handle) && fails(false))
        return -1;
    return real<int (*)(int, off_t)>("ftruncate")(handle, size);
}

int ftruncate64(int handle, off64_t size) noexcept
{
    if (isTracked(handle) && fails(false))
        return -1;
    return real<int (*)(int, off64_t)>("ftruncate64")(handle, size);
}

int fchmod(int handle, mode_t permissions) noexcept
{
    if (isTracked(handle) && fails(false))
        return -1;
    return real<int (*)(int, mode_t)>("fchmod")(handle, permissions);
}

int chmod(const char *path, mode_t permissions) noexcept
{
    if (isUnder(path) && fails(false))
        return -1;
    return real<int (*)(const char *, mode_t)>("chmod")(path, permissions);
}

int rename(const char *from, const char *to) noexcept
{
    if (isUnder(to) && fails())
        return -1;
    return real<int (*)(const char *, const char *)>("rename")(from, to);
}

int link(const char *from, const char *to) noexcept
{
    if (isUnder(to) && fails())
        return -1;
    return real<int (*)(const char *, const char *)>("link")(from, to);
}

int mkdir(const char *path, mode_t permissions) noexcept
{
    if (isUnder(path) && fails())
        return -1;
    return real<int (*)(const char *, mode_t)>("mkdir")(path, permissions);
}

int unlink(const char *path) noexcept
{
    if (isUnder(path) && fails(false))
        return -1;
    return real<int (*)(const char *)>("unlink")(path);
}

int rmdir(const char *path) noexcept
{
    if (isUnder(path) && fails(false))
        return -1;
    return real<int (*)(const char *)>("rmdir")(path);
}

} // extern "C"
