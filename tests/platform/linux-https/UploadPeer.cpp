// The helper's own objects on a machine file, with every step played at once and posts that really leave.
// UploadPeer AUTHORITY MACHINE_FILE

#include <cstdio>
#include <variant>

#include <QCoreApplication>
#include <QSslCertificate>
#include <QTimer>

#include "app/ApplicationPreferences.h"
#include "app/HelperAppDelegate.h"
#include "app/MachineSteps.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/UrlSession.h"
#include "platform/linux/HttpsPost.h"
#include "platform/linux/LinuxBundle.h"
#include "platform/recorded/RecordedPlatform.h"
#include "preferences/PreferencesPresenter.h"

using namespace quindle;

namespace {

class NoPreferencesWindow : public PreferencesPresenter
{
public:
    void showPreferencesWindow() override {}
};

/// Ends the program with the first answer.
class PostingSession : public UrlSession
{
public:
    explicit PostingSession(const QSslConfiguration& trust)
        : m_https({}, trust)
    {
    }

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override
    {
        m_https.post(url, body, [answered](int status, const QByteArray& answer) {
            answered(status, answer);
            std::printf("%d\n", status);
            QCoreApplication::quit();
        });
    }

    std::optional<QByteArray> contents(const QString& /*url*/) override { return std::nullopt; }

private:
    HttpsPost m_https;
};

Platform withSession(const Platform& platform, UrlSession& session)
{
    return {.registry = platform.registry,
            .powerSources = platform.powerSources,
            .userDefaults = platform.userDefaults,
            .notificationCenter = platform.notificationCenter,
            .distributedNotificationCenter = platform.distributedNotificationCenter,
            .workspaceNotifications = platform.workspaceNotifications,
            .workspace = platform.workspace,
            .bundle = platform.bundle,
            .clock = platform.clock,
            .host = platform.host,
            .systemFiles = platform.systemFiles,
            .runLoop = platform.runLoop,
            .statusBar = platform.statusBar,
            .application = platform.application,
            .urlSession = session,
            .userDirectories = platform.userDirectories,
            .powerEvents = platform.powerEvents};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.setCaCertificates(QSslCertificate::fromPath(arguments.at(1)));
    const auto machine = std::get<Machine>(readMachineFile(arguments.at(2)));

    const LinuxBundle programBundle;
    RecordedPlatform recorded(machine.keys, programBundle);
    PostingSession session(trust);
    const Platform platform = withSession(recorded.platform(), session);
    ApplicationPreferences preferences(platform);
    MainInterface interface;
    NoPreferencesWindow preferencesWindow;
    HelperAppDelegate delegate(platform, preferences, interface, preferencesWindow, &QDMac::init);
    delegate.applicationDidFinishLaunching();
    for (const MachineStep& step : machine.steps)
        playStep(step, recorded, platform, delegate);
    QTimer::singleShot(1500, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
