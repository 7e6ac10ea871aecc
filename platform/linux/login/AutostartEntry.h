#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quindle {

/// The program in a bundle that a login item of the bundle starts.
QString bundleProgram(const QString& bundlePath);

/// The file URL of what an autostart entry starts at login, symbolic links followed: the bundle's where it is
/// the program of one, else the program's own. Nothing for an entry that starts nothing: switched off, not an
/// application, broken, or for a program that is not there. Which desktops the entry is for does not matter.
///
/// `programFolders` are looked through for a program without a path; $PATH when empty. `home` is the user's
/// home folder, empty where there is none.
std::optional<QString> urlStartedBy(const QByteArray& entryBytes, const QStringList& programFolders,
                                    const QString& home);

/// A value to be written for "Exec".
struct StartCommand
{
    QByteArray exec;
    bool isThroughLink = false;    ///< `link` has to lead to the program
    bool isForEverySession = true; ///< else some sessions read it differently and start nothing
};

/// The command that starts a program in every session. Sessions differ in how they read a path with unusual
/// characters, so such a program is started through `link`, a path of our own; where that has them too,
/// through a shell that finds it in the home folder; where neither helps, as the format says.
StartCommand startCommand(const QString& program, const QString& link, const QString& home);

/// The contents of an autostart entry that starts the helper by this command.
QByteArray autostartEntry(const QByteArray& command);

} // namespace quindle
