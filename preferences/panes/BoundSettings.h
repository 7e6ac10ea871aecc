#pragma once

#include <QObject>
#include <QString>

namespace quindle {

class ApplicationPreferences;
class Bundle;
class DistributedNotificationCenter;
class LoginItems;
class UserDefaults;

/// The settings as the preferences windows are bound to them: one object for all windows, so that what is
/// changed in one is shown by the others at once. Nothing is kept here but the login item's switch; every
/// other read goes to the database. Storing announces nothing to other processes. Main thread only.
class BoundSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString customStatusBar READ customStatusBar NOTIFY changed)
    Q_PROPERTY(qint64 temperatureSettingIndex READ temperatureSettingIndex NOTIFY changed)
    Q_PROPERTY(bool showsIconsInMenuBar READ showsIconsInMenuBar NOTIFY changed)
    Q_PROPERTY(bool autoUpload READ autoUpload NOTIFY changed)
    Q_PROPERTY(bool autoUploadBatteryData READ autoUploadBatteryData NOTIFY changed)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin NOTIFY changed)
    Q_PROPERTY(qint64 shownMenuBarSetting READ shownMenuBarSetting NOTIFY changed)
    Q_PROPERTY(qint64 statusItemPresentation READ statusItemPresentation NOTIFY changed)

public:
    BoundSettings(ApplicationPreferences& preferences, UserDefaults& standardDefaults, LoginItems& loginItems,
                  const Bundle& bundle, DistributedNotificationCenter& distributedCenter,
                  QObject* parent = nullptr);

    /// The title template.
    QString customStatusBar() const;
    void setCustomStatusBar(const QString& value);

    /// 0 Celsius, 1 Fahrenheit, 2 Kelvin; any other stored number as it is.
    qint64 temperatureSettingIndex() const;
    void setTemperatureSettingIndex(qint64 value);

    /// Stores the unit for the title and, in its own key, for the battery view, which takes it up when the
    /// battery is reloaded. 0 to 2 only: any other stored number is fatal.
    void setTemperatureOfTitleAndView(qint64 value);

    /// Whether 1 is stored; every other number shows no icon.
    bool showsIconsInMenuBar() const;
    void setShowsIconsInMenuBar(bool value);

    /// Permits the daily upload.
    bool autoUpload() const;
    void setAutoUpload(bool value);

    /// The own key "autoUploadBatteryData" of the helper's window, which permits nothing; true for any
    /// integer but 0.
    bool autoUploadBatteryData() const;
    void setAutoUploadBatteryData(bool value);

    /// What the login item's list said at the last `reload`, or what was set since: a switch that the system
    /// did not accept stays as the user left it.
    bool startsAtLogin() const { return m_startsAtLogin; }

    /// Switches the login item that is known by the helper's identifier.
    void setStartsAtLogin(bool value);

    /// 1 when the user's own text was chosen as the title, that is when exactly the number 1 is stored;
    /// otherwise 0.
    qint64 menuBarSetting() const;

    /// The row of what is in force: a text that was written elsewhere counts as the user's own.
    qint64 shownMenuBarSetting() const;

    /// Stores the row, and the template that goes with it. For the window of the menu bar text alone.
    void setMenuBarSetting(qint64 row);

    /// How the status item looks: 0 as it suits the panel, 1 label, 2 wide picture, 3 icon.
    qint64 statusItemPresentation() const;
    void setStatusItemPresentation(qint64 value);

    /// Reads the login items again and has every bound control read its setting again; for each time a window
    /// is shown. After the first call the controls also do so whenever a change of the settings is announced,
    /// and the login items count where they have changed since.
    void reload();

Q_SIGNALS:
    /// Something may have changed.
    void changed();

private:
    void observeAnnouncements();
    void followAnnouncement();

    ApplicationPreferences& m_preferences;
    UserDefaults& m_standardDefaults;
    LoginItems& m_loginItems;
    const Bundle& m_bundle;
    DistributedNotificationCenter& m_distributedCenter;
    bool m_startsAtLogin = false;
    bool m_isLoginItem = false; ///< when the list was last read
    bool m_isObserving = false;
};

} // namespace quindle
