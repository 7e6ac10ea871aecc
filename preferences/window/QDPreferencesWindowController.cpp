#include "preferences/window/QDPreferencesWindowController.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>

#include "common/Translation.h"
#include "platform/Workspace.h"
#include "preferences/window/FrameAutosave.h"
#include "preferences/window/PaneTransition.h"
#include "preferences/window/PreferencesToolbar.h"
#include "preferences/window/QDPreferencesWindow.h"
#include "preferences/window/WindowControllers.h"
#include "settings/SettingsTable.h"
#include "widgets/CloseKey.h"
#include "widgets/controls/SegmentedControl.h"

namespace quindle {

namespace {

// Focus given to a widget that cannot have it would leave the window without any.
bool canBeFirstResponder(const QWidget* widget)
{
    return widget && widget->focusPolicy() != Qt::NoFocus && widget->isEnabled() && widget->isVisible();
}

bool isOnScreen(const QDPreferencesWindow* window)
{
    return window && window->isVisible() && !window->isMinimized();
}

} // namespace

PreferencesDesktop PreferencesDesktop::ofThisProcess()
{
    return {!QGuiApplication::platformName().startsWith(QStringLiteral("wayland")),
            [] { return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) <= 0; }};
}

QDPreferencesWindowController::QDPreferencesWindowController(UserDefaults& defaults, Application& application,
                                                             PreferencesDesktop desktop)
    : m_defaults(defaults)
    , m_application(application)
    , m_desktop(std::move(desktop))
{
}

QDPreferencesWindowController::~QDPreferencesWindowController()
{
    removeShownView();
}

void QDPreferencesWindowController::setViewControllers(PreferencesPanes viewControllers)
{
    m_viewControllers = std::move(viewControllers);
    forgetPaneThatHasGone();
    rebuildToolbar();
}

void QDPreferencesWindowController::forgetPaneThatHasGone()
{
    const auto& panes = m_viewControllers;
    if (std::find(panes.begin(), panes.end(), m_shownViewController) != panes.end())
        return;
    // Its owner may be about to destroy it.
    removeShownView();
    m_shownViewController = nullptr;
    if (isOnScreen(m_window.get()) && !panes.empty())
        showPane(*panes.front());
}

void QDPreferencesWindowController::setTitleAppearsTransparent(bool transparent)
{
    setFlag(m_titleAppearsTransparent, transparent);
}

void QDPreferencesWindowController::setShowToolbarSeparator(bool show)
{
    setFlag(m_flags.showToolbarSeparator, show);
}

void QDPreferencesWindowController::setShowToolbarWithSingleViewController(bool show)
{
    setFlag(m_flags.showToolbarWithSingleViewController, show);
}

void QDPreferencesWindowController::setShowToolbarItemsAsSegmentedControl(bool show)
{
    setFlag(m_flags.showToolbarItemsAsSegmentedControl, show);
}

void QDPreferencesWindowController::setCenterToolbarItems(bool center)
{
    setFlag(m_flags.centerToolbarItems, center);
}

void QDPreferencesWindowController::setAllowsVibrancy(bool allows)
{
    setFlag(m_allowsVibrancy, allows);
}

void QDPreferencesWindowController::setFlag(bool& flag, bool value)
{
    flag = value;
    rebuildToolbar();
}

void QDPreferencesWindowController::rebuildToolbar()
{
    if (!m_window)
        return;
    PreferencesToolbar* toolbar = nullptr;
    if (const auto configuration = toolbarConfiguration(m_viewControllers, m_flags)) {
        std::vector<ToolbarItem> items;
        for (const QString& identifier : toolbarDefaultItemIdentifiers())
            // The identifiers are our own, so each has an item.
            items.push_back(*itemForItemIdentifier(identifier));
        QStringList titles;
        for (const auto* pane : m_viewControllers)
            titles.append(pane->preferencesTitle());
        toolbar = new PreferencesToolbar(*configuration, items, titles);
        toolbar->setTransparent(m_titleAppearsTransparent);
        connect(toolbar, &PreferencesToolbar::itemClicked, this,
                &QDPreferencesWindowController::toolbarItemAction);
        connect(toolbar, &PreferencesToolbar::segmentClicked, this,
                &QDPreferencesWindowController::segmentedControlAction);
    }
    m_window->setToolbar(toolbar);
    // A new toolbar knows nothing of the pane that is shown, and may be of another height.
    selectControlOf(m_shownViewController);
    fitWindow();
}

// Selecting does not act: only what the user does shows a pane.
void QDPreferencesWindowController::selectControlOf(const QDPreferencesWindowControllerProtocol* pane)
{
    PreferencesToolbar* toolbar = m_window->toolbar();
    const auto place = std::find(m_viewControllers.begin(), m_viewControllers.end(), pane);
    if (!toolbar || place == m_viewControllers.end())
        return;
    if (SegmentedControl* control = toolbar->segmentedControl())
        control->selectSegmentWithTag(static_cast<int>(place - m_viewControllers.begin()));
    else
        toolbar->setSelectedItemIdentifier(pane->preferencesIdentifier());
}

void QDPreferencesWindowController::selectFirstControl()
{
    PreferencesToolbar* toolbar = m_window->toolbar();
    if (!toolbar)
        return;
    if (SegmentedControl* control = toolbar->segmentedControl())
        control->selectSegmentWithTag(0);
    else
        // A toolbar is there only where there is a pane, so the item exists.
        toolbar->setSelectedItemIdentifier(toolbarDefaultItemIdentifiers().at(firstPaneItemIndex(m_flags)));
}

void QDPreferencesWindowController::makeWindow()
{
    m_window = std::make_unique<QDPreferencesWindow>();
    m_window->setWindowTitle(translated("Preferences", "Preferences")); // until a pane is shown
    m_window->setMovableByWindowBackground(true);
    m_transition = std::make_unique<PaneTransition>(*m_window);
    m_frameAutosave = std::make_unique<FrameAutosave>(
        *m_window, m_defaults, Keys::preferencesWindowFrame.name(), m_desktop.placesWindows);
    m_frameRestored = m_frameAutosave->restore();
    connect(m_window.get(), &QDPreferencesWindow::contentSizeMayDiffer, this,
            &QDPreferencesWindowController::fitWindow);
    rebuildToolbar();
}

void QDPreferencesWindowController::showPreferencesWindow()
{
    if (!m_window) {
        makeWindow();
        placeForFirstPane();
    }
    if (!isOnScreen(m_window.get())) {
        // Another program may have changed what the pane shows while nobody saw it.
        if (m_shownViewController)
            m_shownViewController->viewWillAppear();
        // Shown transparent first: the first pane is put in while the window appears, which nobody should
        // see.
        setWindowAlpha(0);
        bringToFront();
        selectFirstControl(); // also when another pane was left: the control starts anew, the pane stays
    }
    if (!m_shownViewController)
        showFirstPane();
    setWindowAlpha(1);
}

// Window managers may lose a place and a size that change while the window appears, so both are right before.
void QDPreferencesWindowController::placeForFirstPane()
{
    if (m_viewControllers.empty())
        return;
    m_window->setFixedSize(m_window->fitFor(m_viewControllers.front()->view()).size);
    place();
}

void QDPreferencesWindowController::bringToFront()
{
    // Brings a minimized window back too.
    m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
    m_application.activateIgnoringOtherApplications();
}

void QDPreferencesWindowController::showFirstPane()
{
    if (!m_viewControllers.empty())
        showPane(*m_viewControllers.front());
    place();
}

// A restored place is the user's: only without one is the window centred.
void QDPreferencesWindowController::place()
{
    if (m_frameRestored)
        m_frameAutosave->placeAtRestored();
    else
        centre();
}

void QDPreferencesWindowController::dismissPreferencesWindow()
{
    if (m_window)
        m_window->close();
}

QStringList QDPreferencesWindowController::toolbarDefaultItemIdentifiers() const
{
    return toolbarItemIdentifiers(m_viewControllers, m_flags);
}

QStringList QDPreferencesWindowController::toolbarAllowedItemIdentifiers() const
{
    return toolbarItemIdentifiers(m_viewControllers, m_flags);
}

QStringList QDPreferencesWindowController::toolbarSelectableItemIdentifiers() const
{
    return quindle::toolbarSelectableItemIdentifiers(m_viewControllers, m_flags);
}

std::optional<ToolbarItem>
QDPreferencesWindowController::itemForItemIdentifier(const QString& identifier) const
{
    return toolbarItem(m_viewControllers, identifier);
}

void QDPreferencesWindowController::toolbarItemAction(const QString& identifier)
{
    if (auto* pane = paneWithIdentifier(m_viewControllers, identifier))
        showPane(*pane);
}

void QDPreferencesWindowController::segmentedControlAction()
{
    // Looked up, because the toolbar is made anew whenever a flag changes.
    const auto* control = m_window ? m_window->findChild<SegmentedControl*>() : nullptr;
    const int tag = control ? control->selectedTag() : -1;
    if (tag >= 0 && tag < static_cast<int>(m_viewControllers.size()))
        showPane(*m_viewControllers[static_cast<std::size_t>(tag)]);
}

bool QDPreferencesWindowController::keyDown(const QKeyEvent& event)
{
    if (!isCloseKey(event))
        return false;
    dismissPreferencesWindow();
    return true;
}

void QDPreferencesWindowController::showPane(QDPreferencesWindowControllerProtocol& pane)
{
    // The pane that is shown already is not animated again.
    if (&pane == m_shownViewController || !m_window)
        return;
    m_window->setWindowTitle(pane.preferencesTitle());
    removeShownView();
    pane.viewWillAppear();
    m_shownView = &pane.view();
    m_window->setContent(m_shownView, m_allowsVibrancy);
    beginTransition(*m_shownView);
    // Only now: the transition asks whether a pane was shown before.
    m_shownViewController = &pane;
    if (QWidget* responder = pane.initialFirstResponder(); canBeFirstResponder(responder))
        responder->setFocus(Qt::OtherFocusReason);
}

void QDPreferencesWindowController::beginTransition(QWidget& view)
{
    const bool isFirst = m_shownViewController == nullptr; // there is no earlier pane's size to start from
    PaneTransition::Motion motion =
        isFirst ? PaneTransition::Motion::Fade : PaneTransition::Motion::FadeAndSize;
    if (m_desktop.reducesMotion && m_desktop.reducesMotion())
        motion = PaneTransition::Motion::None;
    const auto fit = m_window->fitFor(view);
    m_window->setScrolls(fit.scrolls);
    m_transition->begin(view, fit.size, motion);
}

void QDPreferencesWindowController::removeShownView()
{
    // Its effect would stay on a view that goes back to its pane.
    if (m_transition)
        m_transition->finish();
    if (!m_shownView)
        return;
    m_shownView->setParent(nullptr); // the pane's again
    m_shownView = nullptr;
    m_window->setContent(nullptr, false);
}

void QDPreferencesWindowController::fitWindow()
{
    if (!m_shownView)
        return;
    const auto fit = m_window->fitFor(*m_shownView);
    m_window->setScrolls(fit.scrolls);
    m_transition->setSize(fit.size);
}

void QDPreferencesWindowController::centre()
{
    if (!m_desktop.placesWindows)
        return;
    const QRect screen = m_window->screen()->availableGeometry();
    m_window->move(centredFrame(m_window->frameGeometry().size(), screen).topLeft());
}

void QDPreferencesWindowController::setWindowAlpha(double alpha)
{
    // Where windows have no position of their own (Wayland) they have no opacity either.
    if (m_desktop.placesWindows)
        m_window->setWindowOpacity(alpha);
}

} // namespace quindle

#include "moc_QDPreferencesWindowController.cpp"
