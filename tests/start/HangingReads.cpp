// Preloaded into the program: while there is a file $QUINDLE_TEST_HANGS_WHILE, reading a file whose path ends
// in $QUINDLE_TEST_HANGING_FILE does not return.

#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <unistd.h>

namespace {

std::string pathOf(int file)
{
    char path[4096] = {};
    const ssize_t size = ::readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path - 1);
    return size > 0 ? path : std::string();
}

bool hangs(int file)
{
    const char* const ending = std::getenv("QUINDLE_TEST_HANGING_FILE");
    const char* const flag = std::getenv("QUINDLE_TEST_HANGS_WHILE");
    return ending && flag && pathOf(file).ends_with(ending) && ::access(flag, F_OK) == 0;
}

ssize_t readLater(const char* function, int file, void* buffer, size_t size, off_t offset)
{
    constexpr useconds_t pause = 20'000;
    while (hangs(file))
        ::usleep(pause);
    return reinterpret_cast<decltype(&pread)>(::dlsym(RTLD_NEXT, function))(file, buffer, size, offset);
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t pread(int file, void* buffer, size_t size,
                                                                off_t offset)
{
    return readLater("pread", file, buffer, size, offset);
}

extern "C" __attribute__((visibility("default"))) ssize_t pread64(int file, void* buffer, size_t size,
                                                                  off_t offset)
{
    return readLater("pread64", file, buffer, size, offset);
}
