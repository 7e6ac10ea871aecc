#include "preferences/window/PreferencesToolbar.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QLayout>
#include <QPainter>

#include "widgets/PaletteMix.h"
#include "widgets/controls/SegmentedControl.h"

namespace quindle {

namespace {

constexpr double marginShare = 0.6; // of a line
constexpr float lineAlpha = 0.15F;

/// Icons that are masks are shown in the text's colour, on every palette.
QIcon inkedIcon(const QIcon& icon, const QColor& ink, const QSize& size)
{
    if (!icon.isMask())
        return icon;
    QIcon inked;
    // For each scale that screens have, since a pixmap is not drawn anew when the window moves to another
    // screen.
    for (const double ratio : {1.0, 2.0, 3.0}) {
        QPixmap pixmap = icon.pixmap(size, ratio);
        if (pixmap.isNull())
            continue;
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), pixmap.size()), ink);
        painter.end();
        inked.addPixmap(pixmap);
    }
    return inked;
}

} // namespace

PreferencesToolbar::PreferencesToolbar(const ToolbarConfiguration& configuration,
                                       const std::vector<ToolbarItem>& items, const QStringList& segments,
                                       QWidget* parent)
    : QToolBar(parent)
    , m_configuration(configuration)
    , m_items(items)
    , m_panes(new QActionGroup(this))
{
    setObjectName(configuration.identifier);
    setAccessibleName(tr("Panes"));
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(configuration.allowsUserCustomization ? Qt::DefaultContextMenu
                                                               : Qt::PreventContextMenu);
    setToolButtonStyle(configuration.displayMode == ToolbarDisplayMode::IconOnly
                           ? Qt::ToolButtonIconOnly
                           : Qt::ToolButtonTextUnderIcon);
    for (const ToolbarItem& item : m_items)
        addItem(item, segments);
    addMnemonics();
    drawIcons();
    fitToFont();
}

void PreferencesToolbar::addItem(const ToolbarItem& item, const QStringList& segments)
{
    switch (item.kind) {
    case ToolbarItem::Kind::Pane:
        addPane(item);
        break;
    case ToolbarItem::Kind::SegmentedControl:
        addSegments(segments);
        break;
    case ToolbarItem::Kind::FlexibleSpace:
        addFlexibleSpace();
        break;
    }
    actions().constLast()->setObjectName(item.identifier);
}

void PreferencesToolbar::addPane(const ToolbarItem& item)
{
    // Its text comes later: which letter is marked depends on all titles.
    QAction* action = addAction(QString());
    action->setCheckable(true);
    m_panes->addAction(action);
    if (item.toolTip)
        action->setToolTip(*item.toolTip);
    else
        widgetForAction(action)->installEventFilter(this);
    // The buttons of a tool bar take no focus, and the panes must be reachable by Tab.
    widgetForAction(action)->setFocusPolicy(Qt::StrongFocus);
    connect(action, &QAction::triggered, this, [this, action] { Q_EMIT itemClicked(action->objectName()); });
}

/// An action without a tool tip would show its title as one.
bool PreferencesToolbar::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::ToolTip || QToolBar::eventFilter(watched, event);
}

void PreferencesToolbar::addFlexibleSpace()
{
    // Tool bars know no flexible space; a widget that expands is one.
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space);
}

void PreferencesToolbar::addSegments(const QStringList& segments)
{
    m_segmentedControl = new SegmentedControl(titlesWithMnemonics(segments), this);
    m_segmentedControl->setObjectName(segmentedControlIdentifier());
    m_segmentedControl->setAccessibleName(accessibleName());
    connect(m_segmentedControl, &SegmentedControl::action, this, &PreferencesToolbar::segmentClicked);
    addWidget(m_segmentedControl);
}

void PreferencesToolbar::addMnemonics()
{
    QStringList labels;
    for (const ToolbarItem& item : m_items)
        if (item.kind == ToolbarItem::Kind::Pane)
            labels.append(item.label);
    const QStringList marked = titlesWithMnemonics(labels);
    for (qsizetype i = 0; i < marked.size(); ++i) {
        QAction* action = m_panes->actions().at(i);
        action->setText(marked.at(i));
        action->setShortcut(QKeySequence::mnemonic(marked.at(i))); // tool buttons take none from their text
    }
}

QString PreferencesToolbar::selectedItemIdentifier() const
{
    const QAction* checked = m_panes->checkedAction();
    return checked ? checked->objectName() : QString();
}

void PreferencesToolbar::setSelectedItemIdentifier(const QString& identifier)
{
    for (QAction* action : m_panes->actions())
        if (action->objectName() == identifier)
            // Unlike a click this does not trigger the action, so no pane is shown by it.
            action->setChecked(true);
}

void PreferencesToolbar::setTransparent(bool transparent)
{
    m_isTransparent = transparent;
    update();
}

void PreferencesToolbar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
    // Icons are inked with the palette's text colour.
    if (event->type() == QEvent::PaletteChange)
        drawIcons();
}

void PreferencesToolbar::drawIcons()
{
    const QColor ink = palette().color(QPalette::WindowText);
    // In the order of the items, from which they were made.
    const QList<QAction*> all = actions();
    for (std::size_t i = 0; i < m_items.size() && qsizetype(i) < all.size(); ++i)
        if (m_items[i].kind == ToolbarItem::Kind::Pane)
            all.at(qsizetype(i))->setIcon(inkedIcon(m_items[i].icon, ink, iconSize()));
}

void PreferencesToolbar::fitToFont()
{
    const int margin = qRound(fontMetrics().height() * marginShare);
    layout()->setContentsMargins(margin, margin, margin, margin); // its layout mixes up different ones
}

void PreferencesToolbar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), toolbarColour(palette(), m_isTransparent));
    if (!showsBaselineSeparator())
        return;
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(lineAlpha);
    painter.fillRect(QRect(0, height() - 1, width(), 1), line);
}

} // namespace quindle

#include "moc_PreferencesToolbar.cpp"
