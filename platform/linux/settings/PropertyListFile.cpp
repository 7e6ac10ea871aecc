#include "platform/linux/settings/PropertyListFile.h"

#include <cerrno>
#include <cmath>
#include <fcntl.h>

#include "platform/posix/FileDescriptor.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

constexpr off_t mostBytes = off_t{16} * 1024 * 1024;

// File times come from a clock that steps every few milliseconds: two writes within one step can leave the
// same time, so a file this young is read again at the next look.
constexpr double clockStep = 0.05;

double secondsBetween(const timespec& one, const timespec& other)
{
    return static_cast<double>(one.tv_sec - other.tv_sec) +
           static_cast<double>(one.tv_nsec - other.tv_nsec) / 1e9;
}

double ageOf(const timespec& time)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return std::abs(secondsBetween(now, time));
}

bool isSame(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

bool isMissing(int error)
{
    return error == ENOENT || error == ENOTDIR;
}

} // namespace

bool PropertyListFile::Identity::operator==(const Identity& other) const
{
    return device == other.device && inode == other.inode && size == other.size &&
           isSame(modified, other.modified) && isSame(changed, other.changed);
}

PropertyListFile::Identity PropertyListFile::identityOf(const struct stat& found)
{
    // The change time too: unlike the modification time, no program can set it back after an edit in place.
    return {found.st_dev, found.st_ino, found.st_size, found.st_mtim, found.st_ctim};
}

PropertyListFile::State PropertyListFile::refresh()
{
    struct stat found = {};
    if (::stat(m_path.constData(), &found) != 0)
        return isMissing(errno) ? become(State::Missing) : become(State::Unreadable, errno);
    if (m_settled && identityOf(found) == m_identity)
        return m_state;
    return reread();
}

PropertyListFile::State PropertyListFile::reread()
{
    // Without O_NONBLOCK a pipe in the file's place would block.
    const FileDescriptor file(::open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen())
        return isMissing(errno) ? become(State::Missing) : become(State::Unreadable, errno);
    struct stat found = {};
    if (::fstat(file.get(), &found) != 0)
        return become(State::Unreadable, errno);
    if (!S_ISREG(found.st_mode))
        return become(State::Unreadable, EINVAL);
    if (found.st_size > mostBytes)
        return become(State::Unreadable, EFBIG);
    const State state = readFrom(file.get(), found.st_size);
    if (state != State::Unreadable)
        remember(found);
    return state;
}

PropertyListFile::State PropertyListFile::readFrom(int descriptor, off_t size)
{
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count =
            ::read(descriptor, bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno != EINTR)
            return become(State::Unreadable, errno);
        if (count == 0)
            break;
        filled += count > 0 ? count : 0;
    }
    bytes.truncate(filled);
    const auto root = propertyListFromBytes(bytes);
    // An empty file too: a program that is killed while it writes in place leaves one.
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return become(State::Damaged);
    become(State::Good);
    m_contents = root->toMap();
    return m_state;
}

PropertyListFile::State PropertyListFile::become(State state, int error)
{
    m_state = state;
    m_error = error;
    m_settled = false;
    // What cannot be read at the moment (a network home that is away) keeps its last contents.
    if (state != State::Unreadable)
        m_contents.clear();
    return state;
}

void PropertyListFile::remember(const struct stat& found)
{
    m_identity = identityOf(found);
    m_settled = ageOf(found.st_ctim) > clockStep;
    // Young enough that an editor may still be writing it in place.
    m_fresh = ageOf(found.st_mtim) < 1.0;
}

} // namespace quindle
