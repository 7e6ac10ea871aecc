#pragma once

#include <QByteArray>

/// Changing a file so that at every moment its name has either the old or the new contents. All paths
/// are absolute and in the file system's encoding; results are errno values, 0 for success.
namespace quindle {

/// The path that `path` names after its symbolic links are followed, whether or not a file is there. Empty
/// when the links lead in a circle.
QByteArray linkTarget(const QByteArray& path);

/// The folder a file is in.
QByteArray folderOf(const QByteArray& path);

/// Makes a folder and those above it, open to the user alone. One that is there already is fine.
int makeFolder(const QByteArray& path);

/// Writes a temporary file beside `path` (0600), flushes it to the disk, and renames it. When that fails, the
/// name still has its old contents and nothing is left over.
int replaceFile(const QByteArray& path, const QByteArray& bytes);

/// Makes `path` a symbolic link to `target`, replacing what was there.
int replaceLink(const QByteArray& path, const QByteArray& target);

/// Removes temporary files of `replaceFile` for `path` that a killed process left behind. Only to be called
/// with the lock that keeps other writers of `path` away.
void removeLeftovers(const QByteArray& path);

/// Renames `path` to `newPath`, never over a file that is there (EEXIST).
int renameWithoutReplacing(const QByteArray& path, const QByteArray& newPath);

/// Renames `path` to a name beside it that says it was damaged, and when: "FILE.damaged-20260228-143000".
/// `newPath` is that name; no other file is ever lost to it.
int setAsideAsDamaged(const QByteArray& path, QByteArray& newPath);

/// Removes the files that `setAsideAsDamaged` has left of `path`. Gives the first error.
int removeDamaged(const QByteArray& path);

} // namespace quindle
