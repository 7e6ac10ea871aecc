// Preloaded into the program: reads of history.sqlite fail with the errno value $QUINDLE_TEST_READ_ERROR, but
// for those of its beginning.

#include <cerrno>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <unistd.h>

namespace {

constexpr off_t beginning = 65536;

bool isHistory(int file)
{
    char path[4096] = {};
    const ssize_t size = ::readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path - 1);
    return size > 0 && std::string(path).ends_with("/history.sqlite");
}

ssize_t readOrFail(const char* function, int file, void* buffer, size_t size, off_t offset)
{
    const ssize_t count =
        reinterpret_cast<decltype(&pread)>(::dlsym(RTLD_NEXT, function))(file, buffer, size, offset);
    const char* const error = std::getenv("QUINDLE_TEST_READ_ERROR");
    if (!error || count <= 0 || offset + count <= beginning || !isHistory(file))
        return count;
    errno = std::atoi(error);
    return -1;
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t pread(int file, void* buffer, size_t size,
                                                                off_t offset)
{
    return readOrFail("pread", file, buffer, size, offset);
}

extern "C" __attribute__((visibility("default"))) ssize_t pread64(int file, void* buffer, size_t size,
                                                                  off_t offset)
{
    return readOrFail("pread64", file, buffer, size, offset);
}
