#include "common/FileContents.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "common/Paths.h"

namespace quindle {

namespace {

class OpenFile
{
public:
    // If a pipe takes the file's place after the check, opening it does not wait for a writer.
    explicit OpenFile(const QByteArray& path)
        : m_descriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
    }
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

int faultOf(const struct stat& found, qint64 mostBytes)
{
    if (!S_ISREG(found.st_mode))
        return EINVAL;
    return found.st_size > mostBytes ? EFBIG : 0;
}

FileContents readAll(int descriptor, qint64 size)
{
    FileContents contents{QByteArray(static_cast<qsizetype>(size), Qt::Uninitialized), 0};
    qsizetype filled = 0;
    // Only as much as it held when it was opened: a file that grows meanwhile cannot pass the limit.
    while (filled < contents.bytes.size()) {
        const ssize_t count = ::read(descriptor, contents.bytes.data() + filled,
                                     static_cast<std::size_t>(contents.bytes.size() - filled));
        if (count < 0 && errno != EINTR)
            return {{}, errno};
        // It became shorter while it was read.
        if (count == 0)
            break;
        filled += count > 0 ? count : 0;
    }
    contents.bytes.truncate(filled);
    return contents;
}

} // namespace

FileContents fileContents(const QString& path, qint64 mostBytes)
{
    const QByteArray name = pathBytes(path);
    if (name.contains('\0')) // the system would read the name up to there
        return {{}, ENOENT};
    struct stat found = {};
    // Checked before it is opened: opening a device can have effects of its own.
    if (::stat(name.constData(), &found) != 0)
        return {{}, errno};
    if (const int fault = faultOf(found, mostBytes))
        return {{}, fault};
    const OpenFile file(name);
    if (file.descriptor() < 0 || ::fstat(file.descriptor(), &found) != 0)
        return {{}, errno};
    // Checked again: another file may have taken its place meanwhile.
    if (const int fault = faultOf(found, mostBytes))
        return {{}, fault};
    return readAll(file.descriptor(), found.st_size);
}

QString readingFault(int error)
{
    if (error == EINVAL)
        return QStringLiteral("is not an ordinary file");
    if (error == EFBIG)
        return QStringLiteral("is too large");
    return QStringLiteral("cannot be read: ") + qt_error_string(error);
}

} // namespace quindle
