#include "platform/linux/supplies/SlowFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include <QLoggingCategory>

#include <fcntl.h>

#include "platform/linux/os/DetachedThread.h"

namespace quindle {

namespace {

using namespace std::chrono_literals;

Q_LOGGING_CATEGORY(slowLog, "quindle.power")

/// Well below the 100 ms after which a file counts as slow, so that it does not go back and forth between the
/// two.
constexpr auto quick = 10ms;

/// A file that is slow and quick by turns would keep holding the program up.
constexpr int mostRecoveries = 3;

/// A driver that hangs at this many files of a supply hangs at all of them.
constexpr int mostOfASupply = 3;

/// Each one is a thread.
constexpr int mostUnderWay = 16;

} // namespace

SlowFile::SlowFile(std::string folder, std::string path, ReadFunction read, Clock::time_point begun)
    : m_folder(std::move(folder))
    , m_path(std::move(path))
    , m_read(std::move(read))
    , m_begun(begun)
{
}

ssize_t SlowFile::latest(char* buffer, std::size_t size) const
{
    const std::scoped_lock lock(m_mutex);
    if (m_isUnderWay)
        return -EAGAIN;
    if (m_result < 0)
        return m_result;
    return static_cast<ssize_t>(m_text.copy(buffer, size));
}

void SlowFile::request(const std::shared_ptr<SlowFile>& file)
{
    {
        const std::scoped_lock lock(file->m_mutex);
        if (std::exchange(file->m_isUnderWay, true))
            return;
        file->m_begun = Clock::now();
    }
    if (!startThread([file] { file->readOnce(); }))
        // Counts as a transport error: the last value stands in.
        file->deliver(nullptr, -EAGAIN);
}

void SlowFile::readOnce()
{
    std::array<char, 4096> buffer{};
    const std::string name = m_path.substr(m_path.rfind('/') + 1);
    const std::filesystem::path path = std::filesystem::path(m_folder) / m_path;
    // Opened by itself: the descriptor that was kept belongs to the thread that hangs.
    const FileDescriptor file = openRegularFile(AT_FDCWD, path.c_str());
    const ssize_t result =
        file.isOpen() ? m_read(file.get(), name.c_str(), buffer.data(), buffer.size()) : ssize_t{-errno};
    deliver(buffer.data(), result);
}

void SlowFile::deliver(const char* buffer, ssize_t result)
{
    const std::scoped_lock lock(m_mutex);
    m_result = result;
    m_text = result > 0 ? std::string(buffer, static_cast<std::size_t>(result)) : std::string();
    m_duration = Clock::now() - m_begun;
    m_isUnderWay = false;
}

bool SlowFile::isUnderWay() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isUnderWay;
}

bool SlowFile::hasRecovered() const
{
    const std::scoped_lock lock(m_mutex);
    return !m_isUnderWay && m_duration < quick;
}

std::shared_ptr<SlowFile> SlowFiles::add(const std::string& path, SlowFile::Clock::time_point begun)
{
    const std::scoped_lock lock(m_mutex);
    if (++m_timesFoundSlow[path] == 1)
        qCWarning(slowLog, "%s does not answer: it is read apart from the others", path.c_str());
    return m_files[path] = std::make_shared<SlowFile>(m_folder, path, m_read, begun);
}

std::optional<ssize_t> SlowFiles::insteadOf(const std::string& path, char* buffer, std::size_t size)
{
    const std::scoped_lock lock(m_mutex);
    if (m_files.empty())
        return std::nullopt;
    const auto found = m_files.find(path);
    if (found == m_files.end())
        return isGivenUp(path) ? std::optional<ssize_t>(-EAGAIN) : std::nullopt;
    const std::shared_ptr<SlowFile> file = found->second;
    // Before the next read begins: while one is under way there is no value, and a file that stays slow would
    // never have one.
    const ssize_t result = file->latest(buffer, size);
    // Nothing can stand in for the list of a folder.
    const bool mayRecover = path == m_folder || m_timesFoundSlow[path] <= mostRecoveries;
    if (file->hasRecovered() && mayRecover)
        m_files.erase(found);
    else
        SlowFile::request(file);
    return result;
}

bool SlowFiles::areTooMany() const
{
    const std::scoped_lock lock(m_mutex);
    return underWayBelow({}) >= mostUnderWay;
}

bool SlowFiles::isGivenUp(const std::string& path) const
{
    return underWayBelow(path.substr(0, path.find('/') + 1)) >= mostOfASupply;
}

int SlowFiles::underWayBelow(const std::string& prefix) const
{
    return static_cast<int>(std::count_if(m_files.begin(), m_files.end(), [&](const auto& entry) {
        return entry.first.starts_with(prefix) && entry.second->isUnderWay();
    }));
}

} // namespace quindle
