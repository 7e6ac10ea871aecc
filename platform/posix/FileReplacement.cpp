#include "platform/posix/FileReplacement.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

#include <QDateTime>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

namespace {

QByteArray nameOf(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

QByteArray temporaryPrefix(const QByteArray& path)
{
    return '.' + nameOf(path) + ".new-";
}

int writeAll(int descriptor, const QByteArray& bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const auto rest = static_cast<std::size_t>(bytes.size() - written);
        const ssize_t count = ::write(descriptor, bytes.constData() + written, rest);
        if (count < 0 && errno != EINTR)
            return errno;
        written += count > 0 ? count : 0;
    }
    // Before the rename: after a power cut the name must not lead to an empty file.
    return ::fsync(descriptor) == 0 ? 0 : errno;
}

int fillAndRename(int descriptor, const QByteArray& temporary, const QByteArray& path,
                  const QByteArray& bytes)
{
    if (const int error = writeAll(descriptor, bytes))
        return error;
    return ::rename(temporary.constData(), path.constData()) == 0 ? 0 : errno;
}

/// Gives the first error.
int removeStartingWith(const QByteArray& prefix, const QByteArray& path)
{
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir(path.constData()));
    if (!folder)
        return errno == ENOENT ? 0 : errno;
    int error = 0;
    while (const dirent* entry = ::readdir(folder.get()))
        if (QByteArrayView(entry->d_name).startsWith(prefix) &&
            ::unlinkat(::dirfd(folder.get()), entry->d_name, 0) != 0 && error == 0)
            error = errno;
    return error;
}

QByteArray damagedStem(const QByteArray& path)
{
    return path + ".damaged-";
}

// The new name survives a power cut only once the folder has reached the disk. The file is replaced by then,
// so a file system that cannot do this changes nothing.
void syncFolder(const QByteArray& path)
{
    const FileDescriptor folder(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen())
        ::fsync(folder.get());
}

} // namespace

QByteArray linkTarget(const QByteArray& path)
{
    constexpr int mostLinks = 40; // as many as the kernel follows
    QByteArray current = path;
    for (int followed = 0; followed <= mostLinks; ++followed) {
        std::array<char, PATH_MAX> buffer{};
        const ssize_t length = ::readlink(current.constData(), buffer.data(), buffer.size());
        if (length < 0)
            return current;
        const QByteArray target(buffer.data(), length);
        current = target.startsWith('/') ? target : folderOf(current) + '/' + target;
    }
    return {};
}

QByteArray folderOf(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash > 0 ? path.left(slash) : QByteArrayLiteral("/");
}

int makeFolder(const QByteArray& path)
{
    if (::mkdir(path.constData(), 0700) == 0)
        return 0;
    const int error = errno;
    struct stat found = {};
    if (error == EEXIST) {
        if (::stat(path.constData(), &found) != 0)
            return errno == ENOENT ? ENOTDIR : errno; // a link to nowhere; a network home that is away
        return S_ISDIR(found.st_mode) ? 0 : ENOTDIR;
    }
    if (error != ENOENT || path.size() <= 1)
        return error;
    // Recursion ends at the root, which exists.
    const int above = makeFolder(folderOf(path));
    if (above != 0)
        return above;
    // Another process may have made it in the meantime.
    return ::mkdir(path.constData(), 0700) == 0 || errno == EEXIST ? 0 : errno;
}

int replaceFile(const QByteArray& path, const QByteArray& bytes)
{
    // In the same folder, since a rename does not cross file systems.
    QByteArray temporary = folderOf(path) + '/' + temporaryPrefix(path) + "XXXXXX";
    // Of mode 0600, which also masks what an access list of the folder would give to others.
    const FileDescriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen())
        return errno;
    const int error = fillAndRename(file.get(), temporary, path, bytes);
    if (error != 0)
        ::unlink(temporary.constData());
    else
        syncFolder(folderOf(path));
    return error;
}

int replaceLink(const QByteArray& path, const QByteArray& target)
{
    // One name for all writers: they replace the link under a lock.
    const QByteArray temporary = folderOf(path) + '/' + temporaryPrefix(path) + "link";
    ::unlink(temporary.constData());
    if (::symlink(target.constData(), temporary.constData()) != 0)
        return errno;
    if (::rename(temporary.constData(), path.constData()) == 0)
        return 0;
    const int error = errno;
    ::unlink(temporary.constData());
    return error;
}

void removeLeftovers(const QByteArray& path)
{
    // Left by writers that were killed before they could rename them.
    removeStartingWith(temporaryPrefix(path), folderOf(path));
}

int renameWithoutReplacing(const QByteArray& path, const QByteArray& newPath)
{
#ifdef Q_OS_MACOS
    const int result = ::renamex_np(path.constData(), newPath.constData(), RENAME_EXCL);
#else
    const int result =
        ::renameat2(AT_FDCWD, path.constData(), AT_FDCWD, newPath.constData(), RENAME_NOREPLACE);
#endif
    if (result == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
        return errno;
    // Some file systems cannot guarantee it; a check before is the best there.
    struct stat found = {};
    if (::lstat(newPath.constData(), &found) == 0)
        return EEXIST;
    return ::rename(path.constData(), newPath.constData()) == 0 ? 0 : errno;
}

int setAsideAsDamaged(const QByteArray& path, QByteArray& newPath)
{
    const QByteArray stem =
        damagedStem(path) + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss").toLatin1();
    newPath = stem;
    int error = renameWithoutReplacing(path, newPath);
    // A damaged file is never lost to another damaged one of the same second.
    for (int number = 1; error == EEXIST; ++number) {
        newPath = stem + '-' + QByteArray::number(number);
        error = renameWithoutReplacing(path, newPath);
    }
    return error;
}

int removeDamaged(const QByteArray& path)
{
    return removeStartingWith(nameOf(damagedStem(path)), folderOf(path));
}

} // namespace quindle
