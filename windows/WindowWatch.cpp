#include "windows/WindowWatch.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QWidget>

namespace quindle {

namespace {

bool isWindowOpen()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget* window) { return window->isVisible(); });
}

} // namespace

bool ownsClipboard()
{
    return QGuiApplication::clipboard()->ownsClipboard();
}

WindowWatch::WindowWatch(std::chrono::milliseconds patience, std::function<void()> idle,
                         std::function<bool()> isNeeded)
    : m_idle(std::move(idle))
    , m_isNeeded(std::move(isNeeded))
{
    m_timer.setInterval(patience);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    m_timer.callOnTimeout(this, [this] {
        // A window that has only just opened has not stopped the timer yet.
        if (!isWindowOpen() && !m_isNeeded())
            m_idle();
    });
    m_timer.start();
    qApp->installEventFilter(this);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &WindowWatch::look);
}

bool WindowWatch::eventFilter(QObject* watched, QEvent* event)
{
    const bool shows = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (shows && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow())
        // Afterwards: during the event the window still has its old state.
        QMetaObject::invokeMethod(
            this, [this] { look(); }, Qt::QueuedConnection);
    return false;
}

void WindowWatch::look()
{
    if (isWindowOpen() || m_isNeeded())
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
}

} // namespace quindle
