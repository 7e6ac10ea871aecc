#include "platform/linux/power/AttributeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace quindle {

namespace {

constexpr std::chrono::milliseconds slowReadDuration(100);

/// The device behind the descriptor has gone; one of the same name may have come.
bool wantsReopening(ssize_t result)
{
    return result == -ENODEV || result == -ENOENT;
}

/// How long a value stands in for one that cannot be read: a few refreshes.
constexpr std::chrono::milliseconds longestStandIn(30'000);

constexpr int firstTries = 3;

/// Something went wrong on the way; the value itself may well be there.
bool isAccident(ssize_t result)
{
    constexpr std::array accidents = {EIO, EAGAIN, EBUSY, ETIMEDOUT, EINTR, EREMOTEIO};
    return std::find(accidents.begin(), accidents.end(), -result) != accidents.end();
}

} // namespace

ssize_t readDescriptor(int descriptor, const char* /*attribute*/, char* buffer, std::size_t size)
{
    const ssize_t result = pread(descriptor, buffer, size, 0);
    return result < 0 ? -errno : result;
}

ssize_t AttributeFile::read(int folder, const char* attribute, AttributeReader& reader, char* buffer,
                            std::size_t size)
{
    ssize_t result = readOnce(folder, attribute, reader, buffer, size);
    for (int tries = 1; isAccident(result) && !m_lastRead && !m_isSlow && tries < firstTries; ++tries)
        result = readOnce(folder, attribute, reader, buffer, size);
    if (result >= 0)
        remember(buffer, result, reader.now());
    else if (isAccident(result))
        result = remembered(buffer, size, reader.now(), result);
    else
        m_lastRead.reset();
    return result;
}

void AttributeFile::remember(const char* buffer, ssize_t size, std::chrono::milliseconds now)
{
    m_lastText.assign(buffer, static_cast<std::size_t>(size));
    m_lastRead = now;
}

ssize_t AttributeFile::remembered(char* buffer, std::size_t size, std::chrono::milliseconds now,
                                  ssize_t error) const
{
    if (!m_lastRead || now - *m_lastRead >= longestStandIn)
        return error;
    return static_cast<ssize_t>(m_lastText.copy(buffer, size));
}

ssize_t AttributeFile::readOnce(int folder, const char* attribute, AttributeReader& reader, char* buffer,
                                std::size_t size)
{
    if (m_isAbsent)
        return -ENOENT;
    if (!m_descriptor.isOpen()) {
        if (const int error = open(folder, attribute); error != 0)
            return -error;
    }
    const ssize_t result =
        m_isSlow ? readElsewhere(attribute, reader, buffer, size) : readHere(attribute, reader, buffer, size);
    if (wantsReopening(result)) {
        m_slowRead.reset();
        m_descriptor.close();
    }
    return result;
}

int AttributeFile::open(int folder, const char* attribute)
{
    // Without O_NONBLOCK a pipe in the file's place would never open.
    FileDescriptor descriptor(openat(folder, attribute, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!descriptor.isOpen()) {
        m_isAbsent = errno != EMFILE && errno != ENFILE && errno != EINTR;
        return errno;
    }
    struct stat status
    {
    };
    if (fstat(descriptor.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        m_isAbsent = true;
        return ENOENT;
    }
    m_descriptor = std::move(descriptor);
    return 0;
}

ssize_t AttributeFile::readHere(const char* attribute, AttributeReader& reader, char* buffer,
                                std::size_t size)
{
    const auto start = reader.now();
    const ssize_t result = reader.read(m_descriptor.get(), attribute, buffer, size);
    m_isSlow = reader.now() - start > slowReadDuration;
    if (m_isSlow) {
        std::string text(buffer, result > 0 ? static_cast<std::size_t>(result) : 0);
        m_slowRead = std::make_shared<SlowRead>(FileDescriptor(fcntl(m_descriptor.get(), F_DUPFD_CLOEXEC, 0)),
                                                attribute, std::move(text), result);
    }
    return result;
}

ssize_t AttributeFile::readElsewhere(const char* attribute, AttributeReader& reader, char* buffer,
                                     std::size_t size)
{
    if (!m_slowRead) {
        m_slowRead = std::make_shared<SlowRead>(FileDescriptor(fcntl(m_descriptor.get(), F_DUPFD_CLOEXEC, 0)),
                                                attribute, std::string(), -EAGAIN);
    }
    const ssize_t result = m_slowRead->latest(buffer, size);
    if (!wantsReopening(result))
        reader.slowReads.request(m_slowRead);
    return result;
}

} // namespace quindle
