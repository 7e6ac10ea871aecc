#include "records/SampleFile.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "common/Paths.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/FileLock.h"
#include "platform/posix/FileReplacement.h"
#include "records/SampleSchema.h"

namespace quindle {

namespace {

// Writers hold the database for milliseconds; one that holds it longer was stopped.
constexpr int longestWait = 5000; // milliseconds

std::optional<FileLock> lockOnDatabase(const QByteArray& path)
{
    return FileLock::take(path + ".lock", std::chrono::milliseconds(longestWait));
}

/// An errno value. SQLite would make the file readable for others; its neighbours get the rights of this one.
/// An existing file is not opened: closing it would release the locks that SQLite holds in this process.
int makePrivate(const QByteArray& path)
{
    const FileDescriptor made(::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (made.isOpen())
        return 0;
    struct stat found = {};
    if (errno != EEXIST || ::stat(path.constData(), &found) != 0)
        return errno;
    if (!S_ISREG(found.st_mode))
        return EINVAL;
    if ((found.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        // A copy that was put back may be readable by everybody.
        ::chmod(path.constData(), 0600);
    return 0;
}

QString reasonOf(int error)
{
    return error == EINVAL ? QStringLiteral("it is not an ordinary file") : qt_error_string(error);
}

enum class Soundness { Sound, Damaged, NotKnown };

Soundness soundnessOf(Database& database)
{
    // The first fault is enough.
    Statement check = database.statement("PRAGMA quick_check(1)");
    if (check.step())
        return check.text(0) == "ok" ? Soundness::Sound : Soundness::Damaged;
    // A server or a disk may not answer for a moment, and memory may be short.
    return database.fault().isDamage ? Soundness::Damaged : Soundness::NotKnown;
}

/// An errno value: SQLite takes a part that the disk cannot read (EIO) for a damaged one.
int readThrough(const QByteArray& path)
{
    const FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    std::array<char, 65536> part{};
    for (off_t offset = 0; file.isOpen();) {
        const ssize_t count = ::pread(file.get(), part.data(), part.size(), offset);
        if (count == 0)
            return 0;
        if (count > 0)
            offset += count;
        else if (errno != EINTR)
            break;
    }
    return errno;
}

} // namespace

SampleFile::SampleFile(const QString& path)
    : m_path(path)
    , m_file(linkTarget(pathBytes(path)))
{
}

StoreOutcome SampleFile::change(const Work& work)
{
    return withNewIfDamaged([&] { return tryToChange(work); });
}

StoreOutcome SampleFile::look(const Work& work)
{
    return withNewIfDamaged([&] { return tryToLook(work); });
}

StoreOutcome SampleFile::check()
{
    return look([this](Database& database) {
        const Soundness soundness = soundnessOf(database);
        m_isDamaged = soundness == Soundness::Damaged;
        return soundness == Soundness::Sound;
    });
}

StoreOutcome SampleFile::removeDamaged() const
{
    const int error = quindle::removeDamaged(m_file);
    return error == 0 ? StoreOutcome() : writingFault(m_path, error);
}

StoreOutcome SampleFile::withNewIfDamaged(const Attempt& attempt)
{
    StoreOutcome outcome = attempt();
    if (!m_isDamaged)
        return outcome;
    StoreOutcome aside = setAside();
    if (!aside.isGood())
        return aside;
    outcome = attempt();
    outcome.notice = aside.notice;
    return outcome;
}

StoreOutcome SampleFile::tryToChange(const Work& work)
{
    if (StoreOutcome opened = openToWrite(); !opened.isGood()) {
        m_database.close(); // with what it may have begun
        return opened;
    }
    errno = 0; // for the reason of a failure
    if (m_database.run("BEGIN IMMEDIATE") && work(m_database) && m_database.run("COMMIT"))
        return {};
    // Before the rollback, which takes the reason's place.
    StoreOutcome fault = refusal(m_database, true);
    m_database.run("ROLLBACK");
    return fault;
}

StoreOutcome SampleFile::tryToLook(const Work& work)
{
    StoreOutcome opened = openToRead();
    // Without a file there is nothing to see, which is no fault.
    if (!opened.isGood() || !m_database.isOpen() || work(m_database))
        return opened;
    return refusal(m_database, false);
}

StoreOutcome SampleFile::openToWrite()
{
    m_isDamaged = false;
    if (isOpen())
        return {};
    if (const int error = makeFolder(folderOf(m_file)))
        return writingFault(m_path, error);
    // One at a time: making the file and its tables is not one step.
    const auto lock = lockOnDatabase(m_file);
    if (!lock)
        return writingFault(m_path, errno);
    if (const int error = makePrivate(m_file))
        return writingFault(m_path, error, reasonOf(error));
    if (!connect(m_database))
        return refusal(m_database, true);
    const auto version = schemaVersion(m_database);
    if (version && *version > newestSchema)
        return writingFault(m_path, EPERM, QStringLiteral("it is of a newer version of Quindle"));
    if (!version || !makeSchema(m_database, *version))
        return refusal(m_database, true);
    rememberFile();
    return {};
}

StoreOutcome SampleFile::openToRead()
{
    m_isDamaged = false;
    if (isOpen())
        return {};
    m_database.close();
    struct stat found = {};
    if (::stat(m_file.constData(), &found) != 0)
        // Most users have none at first; that is no fault.
        return errno == ENOENT || errno == ENOTDIR ? StoreOutcome() : readingFaultOf(m_path, errno);
    if (!S_ISREG(found.st_mode))
        return readingFaultOf(m_path, EINVAL, reasonOf(EINVAL));
    const auto version = connect(m_database) ? schemaVersion(m_database) : std::nullopt;
    if (!version)
        return refusal(m_database, false);
    if (*version > newestSchema)
        return readingFaultOf(m_path, EPERM, QStringLiteral("it is of a newer version of Quindle"));
    rememberFile();
    if (*version != newestSchema)
        m_database.close(); // just being made
    return {};
}

/// What the last command failed with. A database that could not be used is opened anew for the next one.
StoreOutcome SampleFile::refusal(const Database& database, bool isWriting)
{
    const DatabaseFault fault = database.fault();
    m_isDamaged = m_isDamaged || fault.isDamage;
    return isWriting ? writingFault(m_path, fault.error, fault.reason)
                     : readingFaultOf(m_path, fault.error, fault.reason);
}

StoreOutcome SampleFile::setAside()
{
    m_database.close();
    const auto lock = lockOnDatabase(m_file);
    if (!lock)
        return writingFault(m_path, errno);
    // Here, where no connection is open: closing these files would release the locks of one.
    for (const char* part : {"", "-wal"})
        if (const int error = readThrough(m_file + part); error != 0 && error != ENOENT)
            return readingFaultOf(m_path, error);
    Database again;
    const bool canBeRead = again.open(m_file, longestWait) || again.fault().isDamage;
    const Soundness soundness = canBeRead ? soundnessOf(again) : Soundness::NotKnown;
    // Meanwhile another process may have set it aside and made a new one.
    if (soundness == Soundness::Sound)
        return {};
    if (soundness == Soundness::NotKnown)
        return refusal(again, false);
    again.close();
    return moveAside();
}

StoreOutcome SampleFile::moveAside() const
{
    QByteArray newFile;
    if (const int error = setAsideAsDamaged(m_file, newFile))
        return writingFault(m_path, error,
                            QStringLiteral("it is damaged and cannot be set aside: ") +
                                qt_error_string(error));
    // The journal goes with it: a new file must not take it for its own.
    renameWithoutReplacing(m_file + "-wal", newFile + "-wal");
    ::unlink((m_file + "-shm").constData());
    return {.fault = {}, .notice = setAsideNotice(m_path, pathText(newFile)), .error = 0};
}

/// The file that was opened may have been set aside or removed by another process.
bool SampleFile::isOpen() const
{
    struct stat found = {};
    return m_database.isOpen() && ::stat(m_file.constData(), &found) == 0 &&
           static_cast<quint64>(found.st_dev) == m_device && found.st_ino == m_number;
}

void SampleFile::rememberFile()
{
    struct stat found = {};
    ::stat(m_file.constData(), &found);
    m_device = static_cast<quint64>(found.st_dev); // of another type on each system
    m_number = found.st_ino;
}

bool SampleFile::connect(Database& database) const
{
    return database.open(m_file, longestWait);
}

} // namespace quindle
