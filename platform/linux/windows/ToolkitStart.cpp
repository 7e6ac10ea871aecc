#include "platform/linux/windows/ToolkitStart.h"

#include <cerrno> // the program's name
#include <cstring>
#include <sysexits.h>
#include <unistd.h>

#include "common/Paths.h"
#include "platform/linux/os/StandardError.h"

namespace quindle {

namespace {

/// What the toolkit logs about each display that it tries; the last line names them all.
bool isOfAttempt(const char* category, const QString& message)
{
    return (category && std::strncmp(category, "qt.qpa.", 7) == 0) ||
           message.startsWith(QStringLiteral("Failed to create wl_display"));
}

void logWhileStarting(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        const QString reason =
            refusedDisplayText(qgetenv("WAYLAND_DISPLAY"), qgetenv("DISPLAY"), qgetenv("QT_QPA_PLATFORM"));
        printToStandardError(QByteArray(program_invocation_short_name) + ": " + pathBytes(reason));
        // At once: after this the toolkit aborts.
        ::_exit(EX_UNAVAILABLE);
    }
    if (!isOfAttempt(context.category, message))
        printToStandardError(pathBytes(qFormatLogMessage(type, context, message)));
}

} // namespace

ToolkitStart::ToolkitStart()
    : m_former(qInstallMessageHandler(logWhileStarting))
{
}

void ToolkitStart::end()
{
    if (m_former)
        qInstallMessageHandler(m_former);
    m_former = nullptr;
}

QString refusedDisplayText(const QByteArray& wayland, const QByteArray& x11, const QByteArray& toolkit)
{
    QStringList displays;
    for (const QByteArray& name : {wayland, x11})
        if (!name.isEmpty())
            displays.append(u'"' + pathText(name) + u'"');
    const QString reason = displays.isEmpty() ? QStringLiteral("there is no display to show a window on")
                                              : QStringLiteral("no window can be shown on the display ") +
                                                    displays.join(QStringLiteral(" or "));
    return toolkit.isEmpty() ? reason : reason + QStringLiteral(", QT_QPA_PLATFORM=") + pathText(toolkit);
}

} // namespace quindle
