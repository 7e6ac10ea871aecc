#pragma once

#include <cerrno>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "platform/linux/supplies/SupplyFiles.h"

namespace quindle {

/// A file that is read on a thread of its own because reading it may take for ever, and its last contents.
class SlowFile
{
public:
    using Clock = std::chrono::steady_clock;

    /// A read of it began at `begun` on another thread. `path` is below `folder`, or absolute.
    SlowFile(std::string folder, std::string path, ReadFunction read, Clock::time_point begun);

    /// What the last read gave, as a read into `buffer` would; -EAGAIN while one is under way.
    ssize_t latest(char* buffer, std::size_t size) const;

    /// Starts another read, unless one is under way. The thread ends with the read.
    static void request(const std::shared_ptr<SlowFile>& file);

    /// The end of a read.
    void deliver(const char* buffer, ssize_t result);

    bool isUnderWay() const;

    /// Whether the last read was as quick as that of any other file.
    bool hasRecovered() const;

private:
    void readOnce();

    const std::string m_folder;
    const std::string m_path;
    const ReadFunction m_read;
    mutable std::mutex m_mutex;
    std::string m_text;
    ssize_t m_result = -EAGAIN;
    Clock::time_point m_begun;
    Clock::duration m_duration{};
    bool m_isUnderWay = true;
};

/// The slow files of one folder, shared by the thread that reads it and the one that waits.
class SlowFiles
{
public:
    SlowFiles(std::string folder, ReadFunction read)
        : m_folder(std::move(folder))
        , m_read(std::move(read))
    {
    }

    /// Adds a file that has been waited for in vain since `begun`, and logs it the first time.
    std::shared_ptr<SlowFile> add(const std::string& path, SlowFile::Clock::time_point begun);

    /// What stands in for reading the file, as ReadSteps::insteadOf says. A file that is quick again stops
    /// being slow, the first few times; the folder itself each time.
    std::optional<ssize_t> insteadOf(const std::string& path, char* buffer, std::size_t size);

    /// Whether too many reads hang for another one to be tried.
    bool areTooMany() const;

private:
    bool isGivenUp(const std::string& path) const;
    int underWayBelow(const std::string& prefix) const;

    const std::string m_folder;
    const ReadFunction m_read;
    mutable std::mutex m_mutex;
    std::map<std::string, std::shared_ptr<SlowFile>> m_files;
    std::map<std::string, int> m_timesFoundSlow;
};

} // namespace quindle
