#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QString>

#include "platform/linux/FileLock.h"

class QSocketNotifier;

namespace quindle {

/// The folder for what one session's processes share: $XDG_RUNTIME_DIR when it is an absolute path to a
/// folder of the user's, else /tmp/quindle-UID, made for the user alone. Empty when neither can be had.
QString instanceFolder();

/// The name of the display this process is on (Wayland's before X11's), fit for a file name of at most 40
/// characters; "none" without a display.
QString instanceName();

/// Sees to it that one process runs for a folder and name. The first holds a lock and listens on a socket;
/// connecting to it is the request to open the battery view, and only processes of the same user are obeyed.
/// A process that was killed leaves nothing that is in the way of the next one. Main thread only.
class SingleInstance
{
public:
    /// `folder` as `instanceFolder` gives it. Without one every process is the first.
    SingleInstance(const QString& folder, const QString& name);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Whether this process is the first. Needs a QCoreApplication.
    bool acquire();

    /// Asks the first to open its battery view. False when there is none that listens, also after waiting up
    /// to two seconds for one that is just starting: then `acquire` is worth another try.
    bool askFirstToShow() const;

    /// Says what a request does; requests come in once the main loop runs.
    void setShowRequested(std::function<void()> showRequested) { m_showRequested = std::move(showRequested); }

private:
    bool listen();
    void acceptRequest();

    QByteArray m_lockPath;
    QByteArray m_socketPath;
    std::optional<FileLock> m_lock;
    FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_showRequested;
};

} // namespace quindle
