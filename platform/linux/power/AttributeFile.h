#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/linux/os/FileDescriptor.h"
#include "platform/linux/os/MonotonicClock.h"
#include "platform/linux/power/SlowReads.h"

namespace quindle {

/// pread(2) from the beginning of the file.
ssize_t readDescriptor(int descriptor, const char* attribute, char* buffer, std::size_t size);

/// How attribute files are read: the call itself, the clock that times it, and the thread for slow ones.
struct AttributeReader
{
    explicit AttributeReader(ReadFunction readFunction, MonotonicClock clock)
        : read(readFunction)
        , now(std::move(clock))
        , slowReads(std::move(readFunction))
    {
    }

    ReadFunction read;
    MonotonicClock now;
    SlowReads slowReads;
};

/// One attribute file. The descriptor stays open until close(), the value is read anew each time: opening
/// costs several times as much as reading. A file whose read took longer than 100 ms is read by the thread
/// for slow reads from then on, and what that thread last read is taken.
///
/// A read that fails by an accident of the bus to the battery (EIO, EAGAIN, EBUSY, ETIMEDOUT, EINTR,
/// EREMOTEIO) gives what was read last, if that is less than 30 s ago; before anything was read it is tried
/// three times. A driver that says that there is no value or no device (ENODATA, ENODEV) is believed.
class AttributeFile
{
public:
    /// Reads the file `attribute` of `folder` into `buffer`: the number of bytes, or the negated error
    /// number. Anything but a regular file counts as not there.
    ssize_t read(int folder, const char* attribute, AttributeReader& reader, char* buffer, std::size_t size);

    /// Gives the descriptor back; the next read opens the file again.
    void close() { m_descriptor.close(); }

private:
    ssize_t readOnce(int folder, const char* attribute, AttributeReader& reader, char* buffer,
                     std::size_t size);
    void remember(const char* buffer, ssize_t size, std::chrono::milliseconds now);
    ssize_t remembered(char* buffer, std::size_t size, std::chrono::milliseconds now, ssize_t error) const;
    int open(int folder, const char* attribute);
    ssize_t readHere(const char* attribute, AttributeReader& reader, char* buffer, std::size_t size);
    ssize_t readElsewhere(const char* attribute, AttributeReader& reader, char* buffer, std::size_t size);

    FileDescriptor m_descriptor;
    std::shared_ptr<SlowRead> m_slowRead;
    std::string m_lastText;
    std::optional<std::chrono::milliseconds> m_lastRead;
    bool m_isAbsent = false;
    bool m_isSlow = false;
};

} // namespace quindle
