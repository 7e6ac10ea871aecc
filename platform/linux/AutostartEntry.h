#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quindle {

/// The program in a bundle that a login item of the bundle starts.
QString bundleProgram(const QString& bundlePath);

/// The file URL of what an autostart entry starts at login, symbolic links followed: the bundle's where it is
/// the program of one, else the program's own. Nothing for an entry that starts nothing: switched off, no
/// application, broken, or of a program that is not there. For which desktops the entry is does not matter.
///
/// `programFolders` are looked through for a program without a path; $PATH when empty.
std::optional<QString> urlStartedBy(const QByteArray& entryBytes, const QStringList& programFolders);

/// The contents of an autostart entry that starts the helper from this path.
QByteArray autostartEntry(const QString& program);

} // namespace quindle
