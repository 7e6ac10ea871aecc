#pragma once

#include <chrono>
#include <functional>

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include "platform/linux/display/DisplayKey.h"

namespace quindle {

/// The socket file of the session's display: Wayland's before X11's. Empty where there is no display, or one
/// of another computer.
QString displaySocket(const DisplayNames& names);

/// The same for the display that programs started by this process would show windows on: the toolkit's own
/// variable (QT_QPA_PLATFORM) decides first.
QString displaySocketOfProcess();

/// Notices the end of a display without being connected to it: its server removes its socket, or another one
/// replaces it. A server of which only the socket file was deleted, as by a clean-up, counts as long as it
/// can be reached. Needs a QCoreApplication.
class DisplayEnd
{
public:
    /// Calls `ended` once, from the main loop; never where `socket` is empty or not there. What comes back
    /// within `settling` has not ended.
    DisplayEnd(const QString& socket, std::chrono::milliseconds settling, std::function<void()> ended);

    /// Identifies the file at a path: its inode, and when it was made; zeros for none. File systems reuse the
    /// inode of a file that was just deleted, and a file's mode may be changed.
    struct File
    {
        quint64 inode = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        friend bool operator==(const File&, const File&) = default;
    };

private:
    void look();

    QString m_socket;
    File m_file;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
    std::function<void()> m_ended;
};

} // namespace quindle
