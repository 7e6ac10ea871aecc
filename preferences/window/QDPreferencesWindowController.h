#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QObject>
#include <QPointer>

#include "preferences/window/PreferencesToolbarItems.h"
#include "preferences/window/WindowControllers.h"

class QKeyEvent;

namespace quindle {

class Application;
class FrameAutosave;
class PaneTransition;
class QDPreferencesWindow;
class UserDefaults;

/// What a preferences window has to know about its desktop.
struct PreferencesDesktop
{
    bool placesWindows = true;           ///< windows may have a position and be translucent as a whole
    std::function<bool()> reducesMotion; ///< asked before each transition

    /// On Wayland windows have no position. The style reports the desktop's preference for less motion:
    /// animations of length 0.
    static PreferencesDesktop ofThisProcess();
};

/// Shows panes in one window, chosen by toolbar items or by one segmented control in the toolbar. The window
/// is made when it is first shown; until then this is a list of panes and a few flags.
class QDPreferencesWindowController : public QObject, public PreferencesWindowController
{
    Q_OBJECT

public:
    /// All must outlive this object; the frame is kept in `defaults`.
    QDPreferencesWindowController(UserDefaults& defaults, Application& application,
                                  PreferencesDesktop desktop = PreferencesDesktop::ofThisProcess());

    /// Gives the view that is shown back to its pane.
    ~QDPreferencesWindowController() override;

    /// The panes in the order of the toolbar. They must outlive this object or be taken out of it before.
    const PreferencesPanes& viewControllers() const { return m_viewControllers; }
    void setViewControllers(PreferencesPanes viewControllers);

    // Setting any of these makes the toolbar anew.

    /// The toolbar has the content's colour; the title bar above it is drawn by the desktop in any case.
    bool titleAppearsTransparent() const { return m_titleAppearsTransparent; }
    void setTitleAppearsTransparent(bool transparent);

    bool showToolbarSeparator() const { return m_flags.showToolbarSeparator; }
    void setShowToolbarSeparator(bool show);

    bool showToolbarWithSingleViewController() const { return m_flags.showToolbarWithSingleViewController; }
    void setShowToolbarWithSingleViewController(bool show);

    bool showToolbarItemsAsSegmentedControl() const { return m_flags.showToolbarItemsAsSegmentedControl; }
    void setShowToolbarItemsAsSegmentedControl(bool show);

    bool centerToolbarItems() const { return m_flags.centerToolbarItems; }
    void setCenterToolbarItems(bool center);

    /// Panes that are shown from then on are in a view of their own, "visualEffectView".
    bool allowsVibrancy() const { return m_allowsVibrancy; }
    void setAllowsVibrancy(bool allows);

    /// Null until a pane was shown.
    QDPreferencesWindowControllerProtocol* shownViewController() const { return m_shownViewController; }

    /// Shows the window. One that was hidden comes with the pane it was left with, and with the first pane's
    /// control selected. A window that is visible stays as it is.
    void showPreferencesWindow() override;

    /// Closes the window.
    void dismissPreferencesWindow();

    /// The toolbar's contents, by identifier.
    QStringList toolbarDefaultItemIdentifiers() const;
    QStringList toolbarAllowedItemIdentifiers() const;
    QStringList toolbarSelectableItemIdentifiers() const;
    std::optional<ToolbarItem> itemForItemIdentifier(const QString& identifier) const;

    /// A toolbar item was clicked: shows the pane with that identifier, if there is one.
    void toolbarItemAction(const QString& identifier);

    /// A segment was clicked: shows the pane whose index is the selected segment's tag.
    void segmentedControlAction();

    /// Closes the window on Control-W. False for every other key, which goes the usual way.
    bool keyDown(const QKeyEvent& event);

    /// Null until it was first shown.
    QDPreferencesWindow* window() const { return m_window.get(); }

private:
    void setFlag(bool& flag, bool value);
    void forgetPaneThatHasGone();
    void rebuildToolbar();
    void selectControlOf(const QDPreferencesWindowControllerProtocol* pane);
    void selectFirstControl();
    void makeWindow();
    void placeForFirstPane();
    void bringToFront();
    void showFirstPane();
    void place();
    void showPane(QDPreferencesWindowControllerProtocol& pane);
    void beginTransition(QWidget& view);
    void removeShownView();
    void fitWindow();
    void centre();
    void setWindowAlpha(double alpha);

    UserDefaults& m_defaults;
    Application& m_application;
    PreferencesDesktop m_desktop;
    PreferencesPanes m_viewControllers;
    PreferencesToolbarFlags m_flags;
    bool m_titleAppearsTransparent = false;
    bool m_allowsVibrancy = false;
    bool m_frameRestored = false;
    QDPreferencesWindowControllerProtocol* m_shownViewController = nullptr;
    QPointer<QWidget> m_shownView;
    std::unique_ptr<QDPreferencesWindow> m_window;
    std::unique_ptr<PaneTransition> m_transition;
    std::unique_ptr<FrameAutosave> m_frameAutosave;
};

} // namespace quindle
