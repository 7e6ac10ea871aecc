#include "platform/linux/supplies/FileReader.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

namespace {

/// The rest must do for everything else in the process: three hundred batteries once took all of 256.
int quarterOfDescriptors()
{
    constexpr rlim_t most = 256;
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    return static_cast<int>(std::min(limit.rlim_cur / 4, most));
}

/// The device behind the file is gone; one of the same name may have come.
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
    // With one read in three failing, this many all fail once in 81 times: the last value then stands in, and
    // a value is missing once in half a million readings.
    constexpr int mostTries = 4;
    // Asked before anything is touched: even opening a file may hang.
    if (const std::optional<ssize_t> instead = m_steps.insteadOf(path, m_buffer.data(), m_buffer.size()))
        return *instead;
    ssize_t result = tryToRead(path, name, kept);
    for (int tries = 1; isAccident(result) && tries < mostTries; ++tries)
        result = tryToRead(path, name, kept);
    return result;
}

ssize_t FileReader::tryToRead(const std::string& path, const char* name, FileDescriptor& kept)
{
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
    // Left open it would keep failing, whatever device comes under the same name.
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
    FileDescriptor file;
    const ssize_t result = read(path, name, file);
    close(file);
    return result;
}

std::set<std::string> FileReader::namesIn(const std::string& path)
{
    std::set<std::string> names;
    if (m_steps.insteadOf(path, nullptr, 0))
        return names;
    m_steps.begin(path);
    FileDescriptor descriptor(openat(m_folder, path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (const std::unique_ptr<DIR, CloseFolder> folder{fdopendir(descriptor.get())}) {
        // Only now: a stream that was not made has not taken the descriptor over.
        descriptor.release();
        while (const dirent* const entry = readdir(folder.get()))
            names.insert(entry->d_name);
    }
    m_steps.end(nullptr, 0);
    return names;
}

void FileReader::close(FileDescriptor& kept)
{
    if (!kept.isOpen())
        return;
    kept.close();
    --m_keptOpen;
}

} // namespace quindle
