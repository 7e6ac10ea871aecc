#include "view/BatteryWindow.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "battery/QDBattery.h"
#include "facts/Facts.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "view/BatteryView.h"
#include "view/FactRow.h"
#include "view/MenuEntry.h"
#include "view/NoBatteryView.h"
#include "view/ViewMetrics.h"
#include "widgets/CloseKey.h"
#include "widgets/PaletteMix.h"
#include "widgets/PopupGeometry.h"

namespace quindle {

namespace {

constexpr double lineShare = 0.15;
constexpr double borderShare = 0.25; // seen on a desktop of the window's own colour

QScreen* screenAt(const QPoint& point)
{
    QScreen* screen = QGuiApplication::screenAt(point);
    // A tray may report a place between the screens.
    return screen ? screen : QGuiApplication::primaryScreen();
}

/// The row that the widget is or belongs to; null for none.
const FactRow* rowOf(const QWidget* widget)
{
    while (widget && !qobject_cast<const FactRow*>(widget))
        widget = widget->parentWidget();
    return qobject_cast<const FactRow*>(widget);
}

/// A line for each fact that is shown.
QString linesOf(const std::vector<Fact>& facts)
{
    QString lines;
    for (const Fact& fact : facts)
        if (fact.shown)
            lines += joined(fact.caption, QStringLiteral(": "), factText(fact, FactPlace::View)) + u'\n';
    return lines;
}

void copyText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

Qt::WindowFlags flagsOf(BatteryWindow::Kind kind)
{
    if (kind == BatteryWindow::Kind::Plain)
        return Qt::Window;
    return Qt::Popup | Qt::FramelessWindowHint;
}

} // namespace

BatteryWindow::BatteryWindow(MainInterface& interface, Kind kind)
    : QWidget(nullptr, flagsOf(kind))
    , m_interface(interface)
    , m_kind(kind)
{
    // Nothing of the view stays in memory while it is closed, which is nearly always.
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setObjectName(QStringLiteral("batteryWindow"));
    setWindowTitle(tr("Battery"));
    setBackgroundRole(QPalette::Base);
    setAttribute(Qt::WA_TranslucentBackground, kind == Kind::RoundPopup);

    auto* layout = new QVBoxLayout(this);
    // A popup has no frame of the desktop's; it draws its own line.
    const int border = isPopup() ? 1 : 0;
    layout->setContentsMargins(border, border, border, border);
    layout->setSpacing(0);
    addScrollArea(*layout);
    updateFacts(); // before the entries: the keyboard goes through them in the order in which they were made
    addEntries(*layout);
}

void BatteryWindow::addScrollArea(QVBoxLayout& layout)
{
    m_scrollArea = new QScrollArea(this); // scrolls on screens that are lower than the view
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->viewport()->setAutoFillBackground(false); // the window draws it
    // The window's size comes from fit(), not from the area's own idea of a height.
    m_scrollArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    if (m_kind == Kind::RoundPopup) {
        // The scroll bar begins below the round corner, which it would cover.
        auto* corner = new QWidget;
        corner->setFixedHeight(ViewMetrics(*this).radius);
        m_scrollArea->addScrollBarWidget(corner, Qt::AlignTop);
    }
    layout.addWidget(m_scrollArea, 1);
}

void BatteryWindow::setView(FactsView* view)
{
    if (QWidget* former = m_scrollArea->takeWidget())
        former->deleteLater(); // it may be the one that was clicked
    m_view = view;
    m_scrollArea->setWidget(view);
    view->setAutoFillBackground(false);
    view->installEventFilter(this);
    connect(view, &FactsView::clicked, this, &BatteryWindow::performClick);
}

// A battery may come and go while the window is open.
void BatteryWindow::updateFacts()
{
    const QDMac* mac = m_interface.macObjectController().content();
    const bool hasBattery = mac && mac->Battery();
    m_facts = factsFor(FactPlace::View, m_interface.factSources());
    // At each update, because another battery is another object.
    followModels();
    if (!m_view || hasBattery != m_showsBattery) {
        m_showsBattery = hasBattery;
        if (hasBattery)
            setView(new BatteryView(m_interface));
        else
            setView(new NoBatteryView);
    }
    m_view->setFacts(m_facts);
    if (isVisible())
        fit();
}

void BatteryWindow::followModels()
{
    const QDMac* mac = m_interface.macObjectController().content();
    if (!mac)
        return;
    // Models report changes more often than the helper refreshes.
    connect(mac, &QDMac::changed, this, &BatteryWindow::updateFacts, Qt::UniqueConnection);
    if (const QDBattery* battery = mac->Battery())
        connect(battery, &QDBattery::changed, this, &BatteryWindow::updateFacts, Qt::UniqueConnection);
}

void BatteryWindow::performClick(FactClick click)
{
    m_interface.performClick(click);
}

void BatteryWindow::addEntries(QVBoxLayout& layout)
{
    const ViewMetrics metrics(*this);
    m_menu = new QWidget(this);
    auto* menuLayout = new QVBoxLayout(m_menu);
    menuLayout->setContentsMargins(0, metrics.margin / 3 + 1, 0, metrics.margin / 3);
    menuLayout->setSpacing(0);
    const StatusMenu& menu = m_interface.statusMenu();
    for (int id = 1; id <= static_cast<int>(menu.rows().size()); ++id) {
        // Facts are the view's own part, and "Show Battery..." is what has just been done.
        if (menu.rows()[static_cast<std::size_t>(id) - 1].kind != StatusMenu::Kind::Action)
            continue;
        auto* entry = new MenuEntry(m_menu);
        connect(entry, &MenuEntry::clicked, this, [this, id] { choose(id); });
        menuLayout->addWidget(entry);
        m_entries[id] = entry;
        updateEntry(id);
    }
    m_menu->installEventFilter(this);
    layout.addWidget(m_menu);
}

void BatteryWindow::updateEntry(int id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    const StatusMenu::Row& row = m_interface.statusMenu().rows()[static_cast<std::size_t>(id) - 1];
    found->second->setLabel(row.text);
    found->second->setEnabled(row.enabled);
    found->second->setVisible(row.visible);
}

void BatteryWindow::choose(int id)
{
    MainInterface& interface = m_interface; // closing may delete this window
    close();
    interface.statusMenu().choose(id);
}

void BatteryWindow::open(const QPoint& anchor)
{
    m_anchor = anchor;
    fit();
    show();
    raise();
    activateWindow();
    // The window itself has the keyboard first: no entry looks chosen before a key is pressed.
    setFocus(Qt::PopupFocusReason);
}

// As large as its content, which changes while it is open, and no larger than the screen has room for.
void BatteryWindow::fit()
{
    const ViewMetrics metrics(*this);
    m_view->layout()->activate(); // layouts within it remember rows that are hidden since
    const QSize view = m_view->sizeHint();
    const QSize content(m_view->maximumWidth(), view.height() + m_menu->sizeHint().height());
    const QSize wanted = content.grownBy(layout()->contentsMargins());
    const QRect available = screenAt(m_anchor)->availableGeometry();
    const int gap = metrics.rowGap * 2;
    QRect place = popupGeometry(m_anchor, wanted, available, gap);
    if (place.height() < wanted.height()) { // it will scroll
        const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_scrollArea);
        place = popupGeometry(m_anchor, wanted.grownBy({0, 0, scrollBar, 0}), available, gap);
    }
    setFixedSize(place.size());
    if (isPopup())
        move(place.topLeft());
}

// Fonts change inside the scroll area, which does not pass that on.
bool BatteryWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible())
        fit();
    return QWidget::eventFilter(watched, event);
}

void BatteryWindow::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const FactRow* row = rowOf(childAt(event->pos()));
    if (row && !row->text().isEmpty())
        menu->addAction(tr("Copy"), this, [text = row->text()] { copyText(text); });
    menu->addAction(tr("Copy All"), this, [this] { copyText(linesOf(m_facts)); });
    menu->popup(event->globalPos());
}

void BatteryWindow::copyFocusedOrAll()
{
    const FactRow* row = rowOf(focusWidget());
    copyText(row ? row->text() : linesOf(m_facts));
}

void BatteryWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copyFocusedOrAll();
        return;
    }
    if (closesWindow(*event)) {
        close();
        return;
    }
    switch (event->key()) {
    // The arrow keys move as they do in a menu.
    case Qt::Key_Down:
        focusNextPrevChild(true);
        break;
    case Qt::Key_Up:
        focusNextPrevChild(false);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void BatteryWindow::mousePressEvent(QMouseEvent* event)
{
    // A popup grabs the pointer, so presses outside arrive here.
    if (isPopup() && !rect().contains(event->position().toPoint())) {
        if (m_closedOutside)
            m_closedOutside();
        close();
        return;
    }
    QWidget::mousePressEvent(event);
}

void BatteryWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor background = backgroundOf(*this);
    const QColor border = lineOf(*this, borderShare);
    if (m_kind == Kind::RoundPopup) {
        const double radius = ViewMetrics(*this).radius;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(border, 1));
        painter.setBrush(background);
        // Half a pixel in, so that a line one pixel wide falls on whole pixels.
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
    } else {
        painter.fillRect(rect(), background);
    }
    const int margin = layout()->contentsMargins().left();
    painter.fillRect(QRect(margin, m_menu->y(), width() - 2 * margin, 1), lineOf(*this, lineShare));
    if (m_kind == Kind::Popup) {
        painter.setPen(border);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace quindle

#include "moc_BatteryWindow.cpp"
