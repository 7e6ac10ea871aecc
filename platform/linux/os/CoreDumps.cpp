#include "platform/linux/os/CoreDumps.h"

#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace quindle {

namespace {

// Sets of the kinds of memory that a dump holds, as hexadecimal numbers: see core(5).
constexpr std::string_view nothingButProgramHeaders = "0x10";
constexpr std::string_view usualFilter = "0x33";

void setCoreFilter(std::string_view filter)
{
    // Missing in kernels that take no core dumps.
    const int file = ::open("/proc/self/coredump_filter", O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return;
    [[maybe_unused]] const ssize_t count = ::write(file, filter.data(), filter.size());
    ::close(file);
}

} // namespace

void keepMemoryOutOfCoreDumps()
{
    setCoreFilter(nothingButProgramHeaders);
}

void takeWholeCoreDumps()
{
    setCoreFilter(usualFilter);
}

} // namespace quindle
