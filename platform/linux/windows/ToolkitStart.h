#pragma once

#include <QByteArray>
#include <QString>

namespace quindle {

/// While it exists and has not ended, a toolkit that finds no display ends the process with one line and
/// EX_UNAVAILABLE, where it would abort. For the time in which the toolkit's application is made.
class ToolkitStart
{
public:
    ToolkitStart();
    ~ToolkitStart() { end(); }
    ToolkitStart(const ToolkitStart&) = delete;
    ToolkitStart& operator=(const ToolkitStart&) = delete;

    /// The application is made: messages are logged as before.
    void end();

private:
    QtMessageHandler m_former;
};

/// Why no window can be shown, by three variables of the environment: WAYLAND_DISPLAY, DISPLAY and
/// QT_QPA_PLATFORM, each empty like unset.
QString refusedDisplayText(const QByteArray& wayland, const QByteArray& x11, const QByteArray& toolkit);

} // namespace quindle
