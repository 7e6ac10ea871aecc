#pragma once

#include <vector>

#include <QString>

#include "menubar/BatteryFacts.h"
#include "menubar/ObjectController.h"
#include "menubar/ProgressIndicator.h"
#include "platform/StatusMenu.h"

namespace quindle {

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
/// Rows in order: the title and the battery's facts as text (kind Fact), a separator, "Show Battery...", then
/// the entries "Open Application", "Preferences...", "Menu Bar Text...", the version
/// entry and "Quit".
class MainInterface
{
public:
    MainInterface();
    virtual ~MainInterface() = default;

    /// What the interface connects; virtual because an interface may lack an outlet.
    virtual MainOutlets outlets();

    /// Says who carries out the entries. Until then they do nothing.
    void setActions(StatusMenuActions* actions) { m_actions = actions; }

    /// Brings the Fact rows up to date from the content of the object controller and `title`; rows without
    /// anything to tell are hidden. Observers of the menu hear only of rows that are different.
    void updateFacts(const QString& title);

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
    BatteryFacts m_facts;
    int m_titleRow = 0;
    std::vector<int> m_factRows;
    int m_versionItem = 0;
};

} // namespace quindle
