// Preloaded into the program: a folder on a server that is away. Below $QUINDLE_TEST_HANGS nothing is
// answered; below $QUINDLE_TEST_STALE every call fails while there is a file of that name and ".stale".

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isBelow(const char* path, const char* variable)
{
    const char* folder = std::getenv(variable);
    return folder && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool isStale(const char* path)
{
    constexpr const char* variable = "QUINDLE_TEST_STALE";
    if (!isBelow(path, variable))
        return false;
    char flag[4096] = {};
    std::strncat(flag, std::getenv(variable), sizeof flag - 8);
    std::strcat(flag, ".stale");
    return ::access(flag, F_OK) == 0;
}

/// Whether the call fails, or never.
bool isAway(const char* path)
{
    while (isBelow(path, "QUINDLE_TEST_HANGS"))
        ::pause();
    if (!isStale(path))
        return false;
    errno = ESTALE;
    return true;
}

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" __attribute__((visibility("default"))) int stat(const char* path, struct stat* found)
{
    return isAway(path) ? -1 : next<decltype(&stat)>("stat")(path, found);
}

extern "C" __attribute__((visibility("default"))) int mkdir(const char* path, mode_t mode)
{
    return isAway(path) ? -1 : next<decltype(&mkdir)>("mkdir")(path, mode);
}

extern "C" __attribute__((visibility("default"))) int open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return isAway(path) ? -1 : next<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}
