#include "preferences/window/FrameAutosave.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "platform/UserDefaults.h"

namespace quindle {

namespace {

/// The primary one first.
std::vector<QRect> presentScreens()
{
    std::vector<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.push_back(screen->availableGeometry());
    return screens;
}

} // namespace

FrameAutosave::FrameAutosave(QWidget& window, UserDefaults& defaults, QString name, bool placesWindows,
                             std::chrono::milliseconds settleTime, Sizing sizing)
    : m_window(window)
    , m_defaults(defaults)
    , m_name(std::move(name))
    , m_placesWindows(placesWindows)
    , m_sizing(sizing)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settleTime);
    connect(&m_settled, &QTimer::timeout, this, &FrameAutosave::save);
    window.installEventFilter(this);
}

FrameAutosave::~FrameAutosave()
{
    // A window that is closed soon after a move must not lose its place.
    if (m_settled.isActive())
        save();
}

bool FrameAutosave::restore()
{
    m_restored = stored();
    if (!m_restored)
        return false;
    m_window.resize(m_restored->frame.size());
    placeAtRestored();
    return true;
}

void FrameAutosave::placeAtRestored()
{
    // A desktop that places windows itself ignores a position.
    if (!m_restored || !m_placesWindows)
        return;
    // The place is the user's, the size is a pane's by now.
    const QRect frame(m_restored->frame.topLeft(), m_window.frameGeometry().size());
    m_window.move(placedFrame({frame, m_restored->screen}, presentScreens()).topLeft());
}

bool FrameAutosave::eventFilter(QObject* watched, QEvent* event)
{
    // Every step of a move arrives here; it is written once the window rests.
    const bool isResized = event->type() == QEvent::Resize && m_sizing == Sizing::ByUser;
    if ((event->type() == QEvent::Move || isResized) && m_window.isVisible())
        m_settled.start();
    // Minimizing hides spontaneously, and says nothing about where the window belongs.
    if (event->type() == QEvent::Hide && !event->spontaneous())
        save();
    return QObject::eventFilter(watched, event);
}

std::optional<WindowFrame> FrameAutosave::stored() const
{
    const QVariant value = m_defaults.object(m_name);
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    return frameFromText(value.toString());
}

void FrameAutosave::save()
{
    m_settled.stop();
    // What has been stored before is where it belongs.
    if (m_window.isMaximized())
        return;
    WindowFrame frame{m_window.frameGeometry(), m_window.screen()->availableGeometry()};
    if (m_sizing == Sizing::ByUser)
        frame.frame.setSize(m_window.size());
    // There is no true position to store, so the one from another desktop is kept.
    if (!m_placesWindows) {
        const QSize size = frame.frame.size();
        const auto former = stored();
        frame.frame = former ? QRect(former->frame.topLeft(), size) : centredFrame(size, frame.screen);
        frame.screen = former ? former->screen : frame.screen;
    }
    m_defaults.setObject(m_name, frameText(frame));
}

} // namespace quindle

#include "moc_FrameAutosave.cpp"
