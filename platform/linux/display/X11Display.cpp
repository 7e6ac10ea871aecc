#include "platform/linux/display/X11Display.h"

#include <utility>

#include <QLoggingCategory>

#include "platform/linux/display/X11Connection.h"
#include "platform/linux/os/DetachedThread.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(displayLog, "quindle.x11")

constexpr std::chrono::milliseconds usualPatience(200);

} // namespace

QByteArray x11DisplayName(const QByteArray& x11, const QByteArray& wayland, const QByteArray& toolkitPlatform)
{
    if (!toolkitPlatform.isEmpty())
        return toolkitPlatform.startsWith("xcb") ? x11 : QByteArray();
    return wayland.isEmpty() ? x11 : QByteArray();
}

X11Display::X11Display()
    : X11Display(x11DisplayName(qgetenv("DISPLAY"), qgetenv("WAYLAND_DISPLAY"), qgetenv("QT_QPA_PLATFORM")),
                 usualPatience)
{
}

X11Display::X11Display(QByteArray name, std::chrono::milliseconds patience)
    : m_name(std::move(name))
    , m_patience(patience)
{
}

X11Display::~X11Display() = default;

bool X11Display::visitInTime(Visit visit)
{
    const bool owesAnswer = m_lastVisit && !m_lastVisit->isReached(std::chrono::milliseconds(0));
    if (m_name.isEmpty() || owesAnswer)
        return false;
    const auto end = std::make_shared<EndOfWork>();
    const auto work = [end, name = m_name, visit = std::move(visit)] {
        if (const X11Connection connection(name); connection.isOpen())
            visit(connection);
        end->reach();
    };
    // Without room for a thread nothing is asked: this one must never hang.
    if (!startThreadHere(work))
        return false;
    m_lastVisit = end;
    const bool isInTime = end->isReached(m_patience);
    if (!isInTime)
        qCWarning(displayLog).noquote() << "the display" << m_name << "does not answer";
    return isInTime;
}

} // namespace quindle
