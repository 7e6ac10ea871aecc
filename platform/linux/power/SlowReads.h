#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include <sys/types.h>

#include "platform/linux/os/FileDescriptor.h"

namespace quindle {

/// Reads the file from its beginning, as pread(2) does: the number of bytes, or the negated error number.
/// `attribute` is the file's name. May be called on another thread.
using ReadFunction =
    std::function<ssize_t(int descriptor, const char* attribute, char* buffer, std::size_t size)>;

/// One attribute that is read away from the main thread, and what its last read gave.
class SlowRead
{
public:
    /// Takes a descriptor of its own, and what the read gave that was found slow.
    SlowRead(FileDescriptor descriptor, const char* attribute, std::string text, ssize_t result);

    /// Copies the last result into `buffer`. Never waits.
    ssize_t latest(char* buffer, std::size_t size) const;

private:
    friend class SlowReads;

    bool begin();
    void perform(const ReadFunction& read);

    const FileDescriptor m_descriptor;
    const char* const m_attribute;
    mutable std::mutex m_mutex;
    std::string m_text;
    ssize_t m_result;
    bool m_underWay = false;
};

/// A thread that performs slow reads one after the other. It is started by the first request. It outlives
/// this object when a read hangs, so that nobody waits for a driver at the end of the program either.
class SlowReads
{
public:
    explicit SlowReads(ReadFunction read);
    ~SlowReads();

    SlowReads(const SlowReads&) = delete;
    SlowReads& operator=(const SlowReads&) = delete;

    /// Has it read once more, unless a read of it is under way.
    void request(const std::shared_ptr<SlowRead>& slowRead);

private:
    struct Queue;

    static void work(const std::shared_ptr<Queue>& queue);

    std::shared_ptr<Queue> m_queue;
    bool m_started = false;
};

} // namespace quindle
