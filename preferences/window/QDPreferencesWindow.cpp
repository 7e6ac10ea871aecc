#include "preferences/window/QDPreferencesWindow.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include "preferences/window/PreferencesToolbar.h"
#include "widgets/CloseKey.h"
#include "widgets/ControlColours.h"
#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

// Without the button to maximize: the window has its pane's size.
constexpr Qt::WindowFlags titledClosableMiniaturizable =
    Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
    Qt::WindowMinimizeButtonHint;

QVBoxLayout* plainLayout(QWidget* widget)
{
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// Views without a layout have the size they were given.
QSize wantedSize(const QWidget& view)
{
    const QSize hint = view.sizeHint();
    const QSize size = hint.isValid() ? hint.expandedTo(view.minimumSizeHint()) : view.size();
    return size.expandedTo(view.minimumSize()).boundedTo(view.maximumSize());
}

} // namespace

QDPreferencesWindow::QDPreferencesWindow()
    : QWidget(nullptr, titledClosableMiniaturizable)
    , m_scrollArea(new QScrollArea(this))
    , m_contentView(new QWidget)
{
    setObjectName(QStringLiteral("preferencesWindow"));
    // The helper runs on in the tray.
    setAttribute(Qt::WA_QuitOnClose, false);
    setBackgroundRole(contentRole(palette()));
    plainLayout(this)->addWidget(m_scrollArea, 1);

    m_contentView->setObjectName(QStringLiteral("contentView"));
    plainLayout(m_contentView);
    m_contentView->installEventFilter(this);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    // Tab goes from control to control; the area itself would be a stop where nothing happens.
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    // The window is always as wide as its pane.
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(m_contentView);
    setScrolls(false);
}

void QDPreferencesWindow::setToolbar(PreferencesToolbar* toolbar)
{
    if (m_toolbar) {
        m_toolbar->setParent(nullptr);
        m_toolbar->deleteLater(); // the change may come from one of its items
    }
    m_toolbar = toolbar;
    if (!m_toolbar)
        return;
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, m_toolbar);
    // The toolbar is made after the content, and comes before it.
    setTabOrder(m_toolbar, m_scrollArea);
    m_toolbar->show(); // at once, so that it has its size
}

void QDPreferencesWindow::setContent(QWidget* view, bool inVisualEffectView)
{
    QLayout* content = m_contentView->layout();
    while (QLayoutItem* item = content->takeAt(0)) {
        // Views belong to their panes; only the plain view in between was made here.
        if (item->widget() && item->widget() != view)
            item->widget()->deleteLater();
        delete item;
    }
    if (!view)
        return;
    if (inVisualEffectView) {
        auto* effectView = new QWidget(m_contentView);
        effectView->setObjectName(QStringLiteral("visualEffectView"));
        plainLayout(effectView)->addWidget(view);
        content->addWidget(effectView);
        effectView->show();
    } else {
        content->addWidget(view);
    }
    makeBoxesVisible(*view, palette());
    view->show();
}

QDPreferencesWindow::Fit QDPreferencesWindow::fitFor(const QWidget& view) const
{
    const QSize toolbarSize = m_toolbar ? m_toolbar->sizeHint() : QSize(0, 0);
    QSize size = wantedSize(view);
    // No segment may be cut off by a narrow pane.
    size.setWidth(std::max(size.width(), toolbarSize.width()));
    // Wrapped texts need less height where the toolbar makes the window wider than the pane.
    if (view.hasHeightForWidth())
        size.setHeight(view.heightForWidth(size.width()));
    size.rheight() += toolbarSize.height();

    // The window manager's frame takes room on the screen as well.
    const int decorations = frameGeometry().height() - height();
    const int room = screen()->availableGeometry().height() - decorations;
    if (size.height() <= room)
        return {size, false};
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_scrollArea);
    // The scroll bar stands beside the pane, not on it.
    return {QSize(size.width() + scrollBar, room), true};
}

void QDPreferencesWindow::setScrolls(bool scrolls)
{
    m_scrollArea->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

bool QDPreferencesWindow::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        Q_EMIT contentSizeMayDiffer();
    if (event->type() == QEvent::PaletteChange)
        applyColours();
    return handled;
}

void QDPreferencesWindow::applyColours()
{
    if (backgroundRole() != contentRole(palette()))
        setBackgroundRole(contentRole(palette())); // another role is a palette change of its own
    makeBoxesVisible(*m_contentView, palette());
}

// The scroll area does not pass on that its content wants another size.
bool QDPreferencesWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_contentView && event->type() == QEvent::LayoutRequest)
        Q_EMIT contentSizeMayDiffer();
    return QWidget::eventFilter(watched, event);
}

void QDPreferencesWindow::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        QWidget::keyPressEvent(event);
}

void QDPreferencesWindow::closeEvent(QCloseEvent* event)
{
    finishEditing(*this);
    QWidget::closeEvent(event);
}

void QDPreferencesWindow::mousePressEvent(QMouseEvent* event)
{
    if (m_movableByWindowBackground && event->button() == Qt::LeftButton)
        startMove();
    else
        QWidget::mousePressEvent(event);
}

void QDPreferencesWindow::startMove()
{
    // The window manager moves it, so that its own edges and snapping work.
    if (QWindow* handle = windowHandle())
        handle->startSystemMove();
}

} // namespace quindle

#include "moc_QDPreferencesWindow.cpp"
