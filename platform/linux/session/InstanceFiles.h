#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QString>

#include "platform/linux/session/Instance.h"
#include "platform/posix/FileLock.h"

class QSocketNotifier;

namespace quindle {

/// Where the files of one name of a program may be, the best first: in the session's runtime folder where
/// that belongs to the user and no other may write there, then in the folder of the settings, under the
/// computer's name too because homes are shared between computers. Never in /tmp, where another user could
/// make the name first. Each is a path to which ".lock" and ".socket" are appended.
std::vector<QString> instanceFileStems(const QString& program, const QString& name);

/// Makes sure that one process runs for each name, by a lock file and a socket beside it: connecting to the
/// socket asks the process to show itself, and only processes of the same user are obeyed. A killed process
/// leaves nothing behind that stops the next one. Main thread only.
class InstanceFiles
{
public:
    /// The first of the stems at which a lock can be made, or is held by another, counts.
    explicit InstanceFiles(std::vector<QString> stems);
    ~InstanceFiles();
    InstanceFiles(const InstanceFiles&) = delete;
    InstanceFiles& operator=(const InstanceFiles&) = delete;

    /// Waits up to three seconds for the process that holds the lock to listen. Needs a QCoreApplication.
    StartAnswer start();

    /// Takes the best place if it is free, without asking or waiting, for a process that runs whether or not
    /// that succeeds.
    void holdIfFree();

    /// Sets what a request does; requests arrive once the main loop runs.
    void setShowRequested(std::function<void()> showRequested) { m_showRequested = std::move(showRequested); }

private:
    std::optional<StartAnswer> startAt(const QString& stem);
    bool takeLock(const QString& stem);
    bool askFirst() const;
    void listen();
    int openSocket();
    void acceptRequest();

    std::vector<QString> m_stems;
    QString m_faults; ///< of the stems at which no lock can be taken
    QByteArray m_socketPath;
    std::optional<FileLock> m_lock;
    FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_showRequested;
};

} // namespace quindle
