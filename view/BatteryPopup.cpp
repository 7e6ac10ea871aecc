#include "view/BatteryPopup.h"

#include <QApplication>
#include <QCursor>

#include "menubar/MainInterface.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "view/BatteryWindow.h"

namespace quindle {

namespace {

BatteryWindow::Kind windowKind(const Application& application)
{
    using Kind = BatteryWindow::Kind;
    // A Wayland client cannot place a popup without a parent, so the desktop gets an ordinary window to
    // place.
    const bool placesWindows = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    if (placesWindows)
        return Kind::Plain;
    return application.showsTranslucentWindows() ? Kind::RoundPopup : Kind::Popup;
}

} // namespace

BatteryPopup::BatteryPopup(MainInterface& interface, const Application& application, RunLoop& runLoop,
                           QObject* parent)
    : QObject(parent)
    , m_interface(interface)
    , m_application(application)
    , m_runLoop(runLoop)
{
    interface.statusMenu().setViewOpener([this] { open(); });
    interface.statusMenu().setViewToggler([this] { toggle(); });
    // The menu cannot remove an observer, and outlives this object.
    interface.statusMenu().addObserver([popup = QPointer(this)](int id) {
        if (popup && popup->m_window)
            popup->m_window->updateEntry(id);
    });
    interface.setFactsObserver([this] {
        if (m_window)
            m_window->updateFacts();
    });
}

BatteryPopup::~BatteryPopup()
{
    m_interface.statusMenu().setViewOpener({});
    m_interface.statusMenu().setViewToggler({});
    m_interface.setFactsObserver({});
    // The window shows the interface's objects, which may go right after this one.
    delete m_window;
}

bool BatteryPopup::isOpen() const
{
    return m_window && m_window->isVisible();
}

void BatteryPopup::open(const std::optional<QPoint>& pointer)
{
    if (isOpen()) {
        m_window->raise();
        m_window->activateWindow();
        return;
    }
    m_window = new BatteryWindow(m_interface, windowKind(m_application));
    // Visible figures are read on time; they may be late while nobody looks.
    m_window->setPunctuality(m_runLoop.keepPunctual());
    m_window->setClosedOutside([this] {
        // A popup closes at the press and the tray reports the click at the release, so that click is
        // remembered.
        m_closedAt = QCursor::pos();
        m_sinceClosedOutside.start();
    });
    m_window->open(pointer.value_or(QCursor::pos()));
}

void BatteryPopup::close()
{
    if (m_window)
        m_window->close();
}

void BatteryPopup::toggle(const std::optional<QPoint>& pointer)
{
    if (isOpen())
        close();
    else if (!isSameClick(pointer.value_or(QCursor::pos())))
        open(pointer);
}

bool BatteryPopup::isSameClick(const QPoint& pointer) const
{
    // By time and place: nothing links the press that closed it with the tray's click.
    return m_sinceClosedOutside.isValid() &&
           m_sinceClosedOutside.elapsed() < QApplication::doubleClickInterval() &&
           (pointer - m_closedAt).manhattanLength() < QApplication::startDragDistance();
}

} // namespace quindle

#include "moc_BatteryPopup.cpp"
