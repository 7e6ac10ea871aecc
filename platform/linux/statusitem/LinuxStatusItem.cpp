#include "platform/linux/statusitem/LinuxStatusItem.h"

#include <utility>

#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>

#include "platform/Image.h"
#include "platform/RunLoop.h"
#include "platform/StatusMenu.h"
#include "platform/linux/display/X11Desktop.h"
#include "platform/linux/os/MonotonicClock.h"
#include "platform/linux/pictures/Png.h"
#include "platform/linux/session/BusLink.h"
#include "platform/linux/statusitem/MenuAdaptor.h"
#include "platform/linux/statusitem/NotifierTypes.h"
#include "platform/linux/statusitem/TrayItem.h"
#include "platform/linux/statusitem/WatcherLink.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logItem, "quindle.statusitem", QtWarningMsg)

// Not every panel announces its new colours, and each query is a connection of its own.
constexpr std::chrono::minutes panelLooksTheSame(10);
// No matter how often menus are opened.
constexpr std::chrono::seconds panelWasJustSeen(2);

} // namespace

LinuxStatusItem::LinuxStatusItem(const QDBusConnection& bus, RunLoop& runLoop,
                                 StatusItemSurroundings surroundings)
    : m_bus(bus)
    , m_runLoop(runLoop)
    , m_surroundings(std::move(surroundings))
    , m_pictures(m_surroundings.resourcesDirectory)
    , m_guard([this] {
        withdrawObjects();
        Q_EMIT busAbused();
    })
{
    for (QObject* offered : {&m_itemObject, &m_itemObjectWithoutLabel, &m_menuObject})
        m_guard.watch(*offered);
    m_guard.setBus(m_bus);
    m_labelledItem = new LabelledItemAdaptor(&m_itemObject, m_announced, m_pictures, requests());
    m_itemWithoutLabel =
        new NotifierItemAdaptor(&m_itemObjectWithoutLabel, m_announced, m_pictures, requests());
    m_menuAdaptor = new MenuAdaptor(
        &m_menuObject, [this] { useActivationToken(); }, [this] { lookAtPanelSoon(); });
    m_notifierItem = m_labelledItem;
    m_font.setBus(m_bus);
    // Colours can be looked at on X11 only.
    if (m_display.hasName())
        m_themeSwitch.setBus(m_bus);
    connect(&m_font, &InterfaceFont::changed, this, [this] {
        m_wanted.fontFamily = m_font.family();
        scheduleFlush();
    });
    exportObjects();
    linkToWatcher();
    scheduleFlush();
}

LinuxStatusItem::~LinuxStatusItem()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void LinuxStatusItem::setBus(const QDBusConnection& bus)
{
    m_bus = bus;
    m_guard.setBus(m_bus);
    m_font.setBus(m_bus);
    if (m_display.hasName())
        m_themeSwitch.setBus(m_bus);
    exportObjects();
    linkToWatcher();
    if (m_started)
        m_watcher->start();
}

void LinuxStatusItem::linkToWatcher()
{
    m_watcher = std::make_unique<WatcherLink>(m_bus, QLatin1String(itemObjectPath),
                                              m_surroundings.registrationCheck, m_runLoop);
    connect(m_watcher.get(), &WatcherLink::watcherFound, this, &LinuxStatusItem::watcherFound);
    connect(m_watcher.get(), &WatcherLink::watcherLost, this, &LinuxStatusItem::watcherLost);
}

void LinuxStatusItem::exportObjects()
{
    if (!m_bus.isConnected())
        return;
    const bool exported =
        m_bus.registerObject(QLatin1String(itemObjectPath), m_notifierItem->parent(),
                             QDBusConnection::ExportAdaptors) &&
        m_bus.registerObject(QLatin1String(menuObjectPath), &m_menuObject, QDBusConnection::ExportAdaptors);
    if (!exported)
        qCWarning(logItem) << "the status item cannot be offered on the session bus";
}

void LinuxStatusItem::withdrawObjects()
{
    m_bus.unregisterObject(QLatin1String(itemObjectPath));
    m_bus.unregisterObject(QLatin1String(menuObjectPath));
}

void LinuxStatusItem::useItem(NotifierItemAdaptor* item)
{
    if (std::exchange(m_notifierItem, item) == item)
        return;
    withdrawObjects();
    exportObjects();
}

void LinuxStatusItem::setTitle(const QString& title)
{
    m_wanted.contents.title = title;
    scheduleFlush();
}

QString LinuxStatusItem::title() const
{
    return m_wanted.contents.title;
}

void LinuxStatusItem::setImage(std::shared_ptr<Image> image)
{
    m_image = std::move(image);
    m_wanted.contents.imageName = m_image ? m_image->name() : QString();
    scheduleFlush();
}

std::shared_ptr<Image> LinuxStatusItem::image() const
{
    return m_image;
}

void LinuxStatusItem::setMenuBarFontSize(double points)
{
    m_wanted.contents.fontSize = points;
    scheduleFlush();
}

void LinuxStatusItem::setFallbackText(const QString& text)
{
    m_wanted.contents.fallbackText = text;
    scheduleFlush();
}

void LinuxStatusItem::setFallbackOnPower(bool hasPower)
{
    m_wanted.contents.hasPower = hasPower;
    scheduleFlush();
}

void LinuxStatusItem::setToolTipText(const QString& text)
{
    m_wanted.contents.toolTipText = text;
    scheduleFlush();
}

void LinuxStatusItem::setNeedsAttention(bool needed)
{
    m_wanted.contents.needsAttention = needed;
    scheduleFlush();
}

std::optional<ShownItem> LinuxStatusItem::shownItem()
{
    constexpr int side = 44; // the windows may be on a screen with twice the pixels
    if (!m_wanted.hasWatcher && !(m_tray && m_tray->isRunning()))
        return ShownItem{};
    ShownItem shown = quindle::shownItem(m_announced, m_announcedShape);
    if (const auto picture = shownSquare(m_announced))
        shown.picture = pngOf(m_pictures.image(*picture, side));
    return shown;
}

void LinuxStatusItem::setMenu(StatusMenu* menu)
{
    if (menu == m_menu)
        return;
    m_menu = menu;
    m_menuAdaptor->setMenu(menu);
    if (m_tray)
        m_tray->setMenu(menu);
    if (!menu)
        return;
    // The menu cannot remove an observer, and may live longer than the item.
    menu->addObserver([item = QPointer(this), menu](int) {
        if (!item || item->m_menu != menu)
            return;
        item->m_menuChanged = true;
        item->scheduleFlush();
    });
}

void LinuxStatusItem::scheduleFlush()
{
    if (m_flushScheduled)
        return;
    m_flushScheduled = true;
    QMetaObject::invokeMethod(this, &LinuxStatusItem::flush, Qt::QueuedConnection);
}

void LinuxStatusItem::flush()
{
    m_flushScheduled = false;
    if (m_tray && m_tray->isWanted())
        lookForTray();
    if (m_surroundings.presentationChoice)
        m_wanted.choice = m_surroundings.presentationChoice();
    if (m_flushed && m_flushed != m_wanted && timeSinceBoot() - m_panelSeen > panelLooksTheSame)
        lookAtPanel();
    if (m_flushed != m_wanted) {
        m_flushed = m_wanted;
        HostTraits host = m_wanted.hasWatcher ? withChoice(m_wanted.host, m_wanted.choice) : x11TrayTraits;
        host.textColour = m_wanted.textColour;
        m_announcedShape = host.shape;
        announce(present(m_wanted.contents, host, m_wanted.fontFamily));
        if (!m_announced.picture.text.isEmpty())
            m_font.need();
    }
    if (m_menuChanged) {
        m_menuChanged = false;
        m_menuAdaptor->announceChanges();
        if (m_tray)
            m_tray->announceMenuChanges();
    }
    // Only now, so that the first thing a host reads is a whole item.
    if (!m_started) {
        m_started = true;
        m_watcher->start();
    }
}

void LinuxStatusItem::announce(Presentation next)
{
    const Presentation last = std::exchange(m_announced, std::move(next));
    m_notifierItem->announce(last);
    if (m_tray)
        m_tray->announce(last);
}

void LinuxStatusItem::watcherFound(const HostProcess& process)
{
    m_tray.reset();
    m_wanted.host = hostTraits(process, m_surroundings.currentDesktop);
    m_wanted.hasWatcher = true;
    useItem(m_wanted.host.labelHidesIcon ? m_itemWithoutLabel : m_labelledItem);
    m_menuAdaptor->setForm({.commandsFirst = m_wanted.host.cutsTallMenus});
    lookAtPanel();
    flush();
    m_watcher->registerItem();
    // A panel that is just starting may own the watcher's name before it publishes its colours.
    QTimer::singleShot(m_surroundings.registrationCheck, this, &LinuxStatusItem::lookAtPanelAgain);
}

X11Tray LinuxStatusItem::lookAtPanel()
{
    const X11Tray tray = x11Tray(m_display, m_serverMark);
    if (tray.wasReset)
        m_surroundings.displayReset();
    // On a busy computer the colours stay what they were, and are asked for again with the next change.
    if (tray.isAnswered || !m_display.hasName()) {
        m_panelSeen = timeSinceBoot();
        m_wanted.textColour = tray.textColour;
    }
    m_font.forgetAnswer();
    return tray;
}

void LinuxStatusItem::lookAtPanelAgain()
{
    lookAtPanel();
    if (m_flushed != m_wanted)
        scheduleFlush();
}

/// Somebody is at the panel, and may have chosen other colours for it.
void LinuxStatusItem::lookAtPanelSoon()
{
    // Afterwards: the host waits for the answer to its call.
    if (timeSinceBoot() - m_panelSeen > panelWasJustSeen)
        QMetaObject::invokeMethod(this, &LinuxStatusItem::lookAtPanelAgain, Qt::QueuedConnection);
}

void LinuxStatusItem::watcherLost()
{
    // A panel that restarts has its watcher back in a moment; if not by the next refresh, the tray is looked
    // for.
    const bool mayComeBack = std::exchange(m_wanted.hasWatcher, false);
    if (!mayComeBack)
        makeTray();
    flush();
    makeTray();
}

void LinuxStatusItem::makeTray()
{
    if (m_tray || !m_display.hasName())
        return;
    m_tray = std::make_unique<TrayItem>(m_surroundings.trayProgram, m_announced, m_pictures, requests(),
                                        [this] { useActivationToken(); });
    m_tray->setMenu(m_menu);
    connect(m_tray.get(), &TrayItem::wanted, this, &LinuxStatusItem::scheduleFlush);
    // The next refresh looks for a tray, so it must not be skipped.
    m_runLoop.keepPunctual();
}

/// The tray's panel may start after the item, so each refresh asks until there is one.
void LinuxStatusItem::lookForTray()
{
    if (lookAtPanel().isThere)
        m_tray->start();
}

bool LinuxStatusItem::looksForTray() const
{
    return m_tray && !m_tray->isRunning();
}

NotifierItemAdaptor::Requests LinuxStatusItem::requests()
{
    return {[this] { toggleView(); }, [this](const QString& token) { m_activationToken = token; }};
}

void LinuxStatusItem::toggleView()
{
    // Afterwards: the host waits for the answer to its call.
    const auto toggle = [this] {
        useActivationToken();
        if (m_menu)
            m_menu->toggleView();
        lookAtPanelAgain();
    };
    QMetaObject::invokeMethod(this, toggle, Qt::QueuedConnection);
}

void LinuxStatusItem::useActivationToken()
{
    // Where windows may not raise themselves, the toolkit and programs started from here look for the token
    // in the environment.
    if (!m_activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", std::exchange(m_activationToken, {}).toUtf8());
}

LinuxStatusBar::LinuxStatusBar(RunLoop& runLoop, StatusItemSurroundings surroundings)
    : m_runLoop(runLoop)
    , m_surroundings(std::move(surroundings))
{
}

bool LinuxStatusBar::looksForTray() const
{
    return m_last && m_last->looksForTray();
}

std::unique_ptr<StatusItem> LinuxStatusBar::statusItemWithLength(double /*length*/)
{
    const QString name = QStringLiteral("quindle-status-item-%1").arg(++m_items);
    const QDBusConnection none{QString()};
    auto item = std::make_unique<LinuxStatusItem>(none, m_runLoop, m_surroundings);
    auto* link = new BusLink(QDBusConnection::SessionBus, name, BusLink::usualPause, item.get());
    QObject::connect(item.get(), &LinuxStatusItem::busAbused, link, &BusLink::drop);
    m_last = item.get();
    link->open([item = item.get()](const QDBusConnection& bus) { item->setBus(bus); },
               [item = item.get(), none] { item->setBus(none); });
    return item;
}

} // namespace quindle

#include "moc_LinuxStatusItem.cpp"
