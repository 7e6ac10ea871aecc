#include "platform/linux/power/FileReader.h"

#include <algorithm>
#include <cerrno>

#include <sys/resource.h>

namespace quindle {

namespace {

int quarterOfDescriptors()
{
    constexpr rlim_t most = 256;
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    return static_cast<int>(std::min(limit.rlim_cur / 4, most));
}

/// The device behind the file has gone; one of the same name may have come.
bool isGone(ssize_t result)
{
    return result == -ENODEV || result == -ENOENT;
}

} // namespace

FileReader::FileReader(ReadFunction read, ReadSteps& steps)
    : m_read(std::move(read))
    , m_steps(steps)
    , m_mostKeptOpen(quarterOfDescriptors())
{
}

ssize_t FileReader::read(const std::string& path, const char* name, FileDescriptor& kept)
{
    if (const std::optional<ssize_t> instead = m_steps.insteadOf(path, m_buffer.data(), m_buffer.size()))
        return *instead;
    m_steps.begin(path);
    const ssize_t result = readOpened(path, name, kept);
    m_steps.end(m_buffer.data(), result);
    return result;
}

ssize_t FileReader::readOpened(const std::string& path, const char* name, FileDescriptor& kept)
{
    FileDescriptor opened;
    if (!kept.isOpen()) {
        opened = openRegularFile(m_folder, path.c_str());
        if (!opened.isOpen())
            return -errno;
    }
    const int file = kept.isOpen() ? kept.get() : opened.get();
    const ssize_t result = m_read(file, name, m_buffer.data(), m_buffer.size());
    if (isGone(result)) {
        close(kept);
    } else if (opened.isOpen() && m_keptOpen < m_mostKeptOpen) {
        kept = std::move(opened);
        ++m_keptOpen;
    }
    return result;
}

ssize_t FileReader::readOnce(const std::string& path, const char* name)
{
    constexpr int mostTries = 3;
    FileDescriptor file;
    ssize_t result = -EAGAIN;
    for (int tries = 0; isAccident(result) && tries < mostTries; ++tries)
        result = read(path, name, file);
    close(file);
    return result;
}

void FileReader::close(FileDescriptor& kept)
{
    if (!kept.isOpen())
        return;
    kept.close();
    --m_keptOpen;
}

} // namespace quindle
