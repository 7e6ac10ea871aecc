#pragma once

#include <QObject>

#include "preferences/panes/SettingsBinder.h"

namespace quindle {

class BoundSettings;
class HelperPreferencesWindow;
class StatusBarTitle;

namespace Ui {
class HelperPreferences;
}

/// Joins the controls of the menu bar text's window to the settings. They show every change of a setting by
/// their key paths, and what the user changes is stored at once. Filling them stores nothing.
class HelperPreferencesBindings : public QObject
{
    Q_OBJECT

public:
    /// Everything must outlive the bindings except the controls, which may go earlier.
    HelperPreferencesBindings(const Ui::HelperPreferences& ui, HelperPreferencesWindow& window,
                              BoundSettings& settings, StatusBarTitle& title);

private:
    void storeChanges(const Ui::HelperPreferences& ui, StatusBarTitle& title);
    void followMenuBarSetting(QWidget* widget);

    BoundSettings& m_settings;
    SettingsBinder m_binder;
};

} // namespace quindle
