#pragma once

#include <memory>

#include <QTemporaryDir>

#include "app/HelperAppDelegate.h"
#include "app/SampleKeeper.h"
#include "menubar/MainInterface.h"
#include "platform/DetachedPrograms.h"
#include "platform/UrlSession.h"
#include "platform/linux/settings/LinuxUserDefaults.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/recorded/RecordedPlatform.h"
#include "settings/ApplicationPreferences.h"
#include "tests/soak/SoakTime.h"
#include "view/BatteryPopup.h"

namespace quindle {

/// Counts posts and answers each at once.
class AnsweringUrlSession : public UrlSession
{
public:
    int posts = 0;

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& /*url*/) override { return std::nullopt; }
};

/// Does what the application's program would do, within the process: nothing of it may stay behind.
class Recorder : public TextReceiver
{
public:
    explicit Recorder(const Platform& platform)
        : m_platform(platform)
    {
    }

    int starts = 0;
    int samples = 0; ///< that it was given

    bool isInstalled() const override { return true; }
    bool isRunning() override { return false; }
    bool handOver(const QByteArray& text) override;

private:
    const Platform& m_platform;
};

/// The real status item, off every bus.
class UnconnectedStatusBar : public StatusBar
{
public:
    explicit UnconnectedStatusBar(RunLoop& runLoop)
        : m_runLoop(runLoop)
    {
    }

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

private:
    RunLoop& m_runLoop;
};

/// A launched helper with battery view, settings files and saved history, on a recorded computer whose clock
/// and timers run as fast as the test asks.
class SoakedHelper
{
public:
    SoakedHelper();
    ~SoakedHelper();

    /// Lets ten seconds pass with everything that happens in them.
    void passTenSeconds();

    /// Changes a setting as another program does. Returns how often the helper refreshed itself for it.
    int changeSetting();

    int gatesOpened() const { return m_gatesOpened; }
    int posts() const { return m_urlSession.posts; }
    const Recorder& recorder() const { return m_recorder; }

    qint64 now() const { return m_clock.now().toSecsSinceEpoch(); }

    /// The file of the recorded history.
    QString history() const;

private:
    Platform platform();
    void recordOldDay();
    void changeBattery();
    void swapBattery();
    void sleepForAnHour();
    void lookAtView();
    void toggleUnits();
    void readHistory();
    bool isEvery(qint64 seconds, qint64 offset = 0) const { return m_seconds % seconds == offset; }

    qint64 m_seconds = 0;
    int m_settingsChanged = 0;
    int m_gatesOpened = 0;
    int m_refreshes = 0;
    QTemporaryDir m_folder;
    LinuxBundle m_programBundle;
    RecordedPlatform m_recorded;
    LinuxUserDefaultsDatabases m_userDefaults;
    AnsweringUrlSession m_urlSession;
    SoakClock m_clock;
    SoakRunLoop m_runLoop{m_clock};
    UnconnectedStatusBar m_statusBar{m_runLoop};
    Platform m_platform;
    MainInterface m_interface;
    std::unique_ptr<ApplicationPreferences> m_preferences;
    std::unique_ptr<HelperAppDelegate> m_delegate;
    Recorder m_recorder{m_platform};
    std::unique_ptr<SampleKeeper> m_keeper;
    std::unique_ptr<BatteryPopup> m_popup;
};

} // namespace quindle
