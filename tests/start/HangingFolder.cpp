// Preloaded into the program: files below $QUINDLE_TEST_HANGS answer no more, as those of a server that is away.

#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void hangIfBelow(const char* path)
{
    const char* folder = std::getenv("QUINDLE_TEST_HANGS");
    if (folder && std::strncmp(path, folder, std::strlen(folder)) == 0)
        for (;;)
            ::pause();
}

template <typename Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

#define HANGING __attribute__((visibility("default")))

extern "C" HANGING int stat(const char* path, struct stat* found)
{
    hangIfBelow(path);
    return next<decltype(&stat)>("stat")(path, found);
}

extern "C" HANGING int mkdir(const char* path, mode_t mode)
{
    hangIfBelow(path);
    return next<decltype(&mkdir)>("mkdir")(path, mode);
}

extern "C" HANGING int open(const char* path, int flags, ...)
{
    hangIfBelow(path);
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return next<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}
