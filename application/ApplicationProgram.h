#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>

#include "app/HelperAppDelegate.h"
#include "application/ApplicationWindow.h"
#include "application/saved/SavedSamples.h"
#include "application/saved/SavedSnapshots.h"
#include "menubar/MainInterface.h"
#include "platform/Bundle.h"
#include "platform/Platform.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/GeneralPreferencesController.h"

namespace quindle {

class ApplicationPreferences;
class HistoryPage;
class IORegistry;
class PowerHistory;
class PowerManagers;

/// What only some computers have.
struct ApplicationExtras
{
    PowerManagers* powerManagers = nullptr; ///< null: no other program is known to warn
    IORegistry* registryAsItIs = nullptr;   ///< what captures hold; null: the platform's
};

/// The application's bundle as its panes see it: by its name alone. The folder that it is installed in has
/// the helper's name, and a pane takes a bundle with that name in its path for the helper's, in which start
/// at login cannot be switched.
class ApplicationBundle : public Bundle
{
public:
    /// `bundle` is the application's own; it must outlive this one.
    explicit ApplicationBundle(const Bundle& bundle)
        : m_bundle(bundle)
    {
    }

    QString path() const override { return QStringLiteral("Quindle.app"); }
    std::optional<QVariantMap> infoDictionary() const override { return m_bundle.infoDictionary(); }
    QString resourcesPath() const override { return m_bundle.resourcesPath(); }

private:
    const Bundle& m_bundle;
};

/// The application on its computer: models of its own, which are refreshed as the helper's are, and the
/// window that shows them. Main thread only; needs a QApplication.
class ApplicationProgram : public QObject
{
    Q_OBJECT

public:
    /// What is passed in must outlive it. `helperBundle` is the bundle that machine files name.
    /// `placesWindows` as for ApplicationWindow.
    ApplicationProgram(const Platform& platform, ApplicationPreferences& preferences, Bundle& helperBundle,
                       bool placesWindows, const ApplicationExtras& extras = {});
    ~ApplicationProgram() override;

    /// Shows the window, or brings it to the front.
    void present();

    /// Fills the first week of the history with what another service has recorded, where recording is on and
    /// that was not done yet. `service` is called in the background.
    void takeOverFirstWeek(const std::function<std::unique_ptr<PowerHistory>()>& service);

    HelperAppDelegate& delegate() { return m_delegate; }
    ApplicationWindow& window() { return *m_window; }

Q_SIGNALS:
    /// The models may have other values.
    void refreshed();

private:
    std::vector<ApplicationPage> pages();
    QWidget* makeHistoryPage(QWidget* parent);
    void connectSamples(HistoryPage& page);
    void askForSamples();
    QWidget* makeSnapshotsPage(QWidget* parent);
    void deleteHistory();
    void followBattery();
    void showState();
    void watch(bool isSeen);

    Platform m_platform;
    Bundle& m_helperBundle;
    ApplicationExtras m_extras;
    MainInterface m_interface;
    HelperAppDelegate m_delegate;
    BoundSettings m_settings;
    ApplicationBundle m_paneBundle;
    GeneralPreferencesController m_general;
    SavedSnapshots m_snapshots;
    SavedSamples m_samples;
    std::unique_ptr<ApplicationWindow> m_window;
    Punctuality m_watched;
    qint64 m_asked = 0; ///< when the helper was last asked for its samples
};

} // namespace quindle
