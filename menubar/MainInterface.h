#pragma once

#include <functional>
#include <vector>

#include <QPointer>
#include <QString>

#include "facts/Facts.h"
#include "mac/QDMac.h"
#include "menubar/ProgressIndicator.h"
#include "platform/StatusMenu.h"

namespace quindle {

class UserDefaults;

/// Holds the computer that an interface shows.
class ObjectController
{
public:
    /// Sets the content object, which the controller does not own.
    void addObject(QDMac* mac) { m_content = mac; }

    /// Null before one was added, and after it was destroyed.
    QDMac* content() const { return m_content; }

private:
    QPointer<QDMac> m_content;
};

/// A view that can hang in the status menu, known by its outlet's name.
struct MenuView
{
    QString name; ///< "menuView" or "noBatteryView"
};

/// What the main interface connects to the application delegate. The delegate keeps none of it alive; one
/// that is missing (null, 0) at launch is fatal.
struct MainOutlets
{
    MenuView* menuView = nullptr;
    MenuView* noBatteryView = nullptr;
    ObjectController* macObjectController = nullptr;
    ProgressIndicator* stateOfChargeProgress = nullptr;
    ProgressIndicator* stateOfHealthProgress = nullptr;
    StatusMenu* statusMenu = nullptr;
    int versionItem = 0; ///< the id of a row of `statusMenu`
};

/// What choosing an entry of the status menu asks the application for.
class StatusMenuActions
{
public:
    virtual ~StatusMenuActions() = default;

    virtual void openApplication() = 0;
    virtual void openPreferences() = 0;
    virtual void openMenuBarText() = 0;
    virtual void quitApp() = 0;
};

/// The main interface without its widgets: the status menu with its rows, the two bars, both views by name
/// and the object controller. The helper shows it in a window of its own, quindle-inspect only reads it.
///
/// Rows in order: the title and the facts that matter at the moment, the submenu "Details" with the others, a
/// separator, "Show Battery...", then the entries "Open Application", "Preferences...", "Menu Bar Text...",
/// the version entry and "Quit".
class MainInterface
{
public:
    MainInterface();
    virtual ~MainInterface() = default;

    /// What the interface connects; virtual because an interface may lack an outlet.
    virtual MainOutlets outlets();

    /// Sets who carries out the entries. Until then they do nothing.
    void setActions(StatusMenuActions* actions) { m_actions = actions; }

    /// Sets the service that facts may ask besides the object controller's content; none when null.
    void setPowerSources(PowerSources* powerSources) { m_powerSources = powerSources; }

    /// Sets the helper's own database, which says in which unit capacities are shown; none when null.
    void setOwnDefaults(UserDefaults* own) { m_ownDefaults = own; }

    /// Where the interface's facts come from.
    FactSources factSources() const;

    /// Brings the Fact rows up to date; what is not shown is hidden. Observers of the menu are called for
    /// changed rows only, the observer of the facts at each call.
    void updateFacts(const QString& title);

    /// Does what a click on a fact's value does.
    void performClick(FactClick click);

    /// The one observer of `performClick`, called afterwards; an empty function for none.
    void setClickObserver(std::function<void(FactClick)> clicked) { m_clicked = std::move(clicked); }

    /// The one observer of `updateFacts`; an empty function for none.
    void setFactsObserver(std::function<void()> updated) { m_factsUpdated = std::move(updated); }

    StatusMenu& statusMenu() { return m_statusMenu; }
    ObjectController& macObjectController() { return m_macObjectController; }
    ProgressIndicator& stateOfChargeProgress() { return m_stateOfChargeProgress; }
    ProgressIndicator& stateOfHealthProgress() { return m_stateOfHealthProgress; }

private:
    void addFactRows();
    void addEntries();
    void setFactRow(int id, const QString& text);

    MenuView m_menuView{QStringLiteral("menuView")};
    MenuView m_noBatteryView{QStringLiteral("noBatteryView")};
    ObjectController m_macObjectController;
    ProgressIndicator m_stateOfChargeProgress;
    ProgressIndicator m_stateOfHealthProgress;
    StatusMenu m_statusMenu;
    StatusMenuActions* m_actions = nullptr;
    PowerSources* m_powerSources = nullptr;
    UserDefaults* m_ownDefaults = nullptr;
    std::function<void()> m_factsUpdated;
    std::function<void(FactClick)> m_clicked;
    int m_titleRow = 0;
    int m_detailsRow = 0;
    std::vector<int> m_factRows;
    int m_versionItem = 0;
};

} // namespace quindle
