#pragma once

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"

namespace quindle {

/// A computer that may be asked for nothing but the time and three settings: every other call fails the test.
class ForbiddenPlatform
{
    template <class T = void>
    static T refuse(const char* call)
    {
        ADD_FAILURE() << call << " was called";
        return T();
    }

    struct Registry : IORegistry
    {
        RegistryObject serviceMatchingName(const QString&) override { return refuse<RegistryObject>("name"); }
        RegistryObject serviceMatchingClass(const QString&) override
        {
            return refuse<RegistryObject>("class");
        }
        QVariant property(RegistryObject, const QString&) override { return refuse<QVariant>("property"); }
        QVariantMap properties(RegistryObject) override { return refuse<QVariantMap>("properties"); }
        std::optional<bool> isMatched(const QString&) override { return refuse<bool>("matched"); }
        IOStatus release(RegistryObject) override { return refuse<IOStatus>("release"); }
    };

    struct Sources : PowerSources
    {
        std::optional<QVariantMap> externalAdapterDetails() override
        {
            return refuse<QVariantMap>("adapter");
        }
        std::optional<int> sourceCount() override { return refuse<int>("sources"); }
        std::optional<QVariantMap> description(int) override { return refuse<QVariantMap>("description"); }
        std::optional<int> chargeLimit() override { return refuse<int>("charge limit"); }
        std::optional<double> voltageOfEnergies() override { return refuse<double>("energies"); }
        QList<PeripheralBattery> peripherals() override
        {
            return refuse<QList<PeripheralBattery>>("peripherals");
        }
    };

    struct Settings : UserDefaults
    {
        QVariant object(const QString& key) const override
        {
            const QStringList allowed{QStringLiteral("QDMacAgeMode"), QStringLiteral("QDBatteryAgeMode"),
                                      QStringLiteral("QDBatteryTemperatureMode")};
            EXPECT_TRUE(allowed.contains(key)) << key.toStdString();
            return {};
        }
        void setObject(const QString&, const QVariant&) override { refuse("a write of settings"); }
        QVariantMap dictionaryRepresentation() const override { return refuse<QVariantMap>("all settings"); }
        QString file() const override { return refuse<QString>("the file of settings"); }
    };

    struct Databases : UserDefaultsDatabases
    {
        Settings settings;

        UserDefaults& standard() override { return settings; }
        UserDefaults* suite(const QString&) override { return refuse<UserDefaults*>("the suite"); }
    };

    struct Distributed : DistributedNotificationCenter
    {
        void addObserver(const QString&, NotificationCenter::Observer) override
        {
            refuse("a distributed observer");
        }
        void post(const QString&) override { refuse("a distributed post"); }
    };

    struct Sleep : WorkspaceNotifications
    {
        void addWillSleepObserver(NotificationCenter::Observer) override { refuse("a sleep observer"); }
        void addDidWakeObserver(NotificationCenter::Observer) override { refuse("a wake observer"); }
    };

    struct Launcher : Workspace
    {
        void launchApplication(const QString&) override { refuse("a launch"); }
    };

    struct Information : Bundle
    {
        QString path() const override { return refuse<QString>("the bundle's path"); }
        std::optional<QVariantMap> infoDictionary() const override
        {
            return refuse<QVariantMap>("the bundle");
        }
    };

    struct Name : Host
    {
        QString localizedName() const override { return refuse<QString>("the host's name"); }
    };

    struct Files : SystemFiles
    {
        std::optional<QVariantMap> propertyList(const QString&) const override
        {
            return refuse<QVariantMap>("a file");
        }
    };

    struct Loop : RunLoop
    {
        std::shared_ptr<Timer> scheduleRepeatingTimer(double, double, std::function<void()>) override
        {
            return refuse<std::shared_ptr<Timer>>("a timer");
        }
        Punctuality keepPunctual() override { return refuse<Punctuality>("punctual timers"); }
    };

    struct Bar : StatusBar
    {
        std::unique_ptr<StatusItem> statusItemWithLength(double) override
        {
            return refuse<std::unique_ptr<StatusItem>>("a status item");
        }
    };

    struct Program : Application
    {
        void terminate() override { refuse("the end of the program"); }
        void activateIgnoringOtherApplications() override { refuse("activation"); }
        bool showsTranslucentWindows() const override
        {
            refuse("the screen");
            return false;
        }
    };

    struct Network : UrlSession
    {
        void post(const QString&, const QByteArray&, std::function<void(int, const QByteArray&)>) override
        {
            refuse("a post");
        }
        std::optional<QByteArray> contents(const QString&) override
        {
            return refuse<QByteArray>("a request");
        }
    };

    struct Folders : UserDirectories
    {
        QStringList applicationSupportDirectories() const override
        {
            refuse("the user's folders");
            return {};
        }
    };

    struct Login : LoginItems
    {
        std::optional<std::vector<Item>> snapshot() override
        {
            return refuse<std::vector<Item>>("login items");
        }
        std::optional<QString> resolve(Item) override { return refuse<QString>("resolve"); }
        void insertBeforeFirst(const QString&) override { refuse("insert"); }
        void remove(Item) override { refuse("remove"); }
        void setEnabled(const QString&, bool) override { refuse("enable"); }
    };

    struct Events : PowerEvents
    {
        void setObserver(std::function<void()>) override { refuse("power events"); }
    };

    Registry m_registry;
    Sources m_powerSources;
    Databases m_userDefaults;
    NotificationCenter m_notificationCenter;
    Distributed m_distributed;
    Sleep m_workspaceNotifications;
    Launcher m_workspace;
    Information m_bundle;
    Name m_host;
    Files m_systemFiles;
    Loop m_runLoop;
    Bar m_statusBar;
    Program m_application;
    Network m_urlSession;
    Folders m_userDirectories;
    Login m_loginItems;
    Events m_powerEvents;

public:
    FakeClock clock;
    Platform platform{.registry = m_registry,
                      .powerSources = m_powerSources,
                      .userDefaults = m_userDefaults,
                      .notificationCenter = m_notificationCenter,
                      .distributedNotificationCenter = m_distributed,
                      .workspaceNotifications = m_workspaceNotifications,
                      .workspace = m_workspace,
                      .bundle = m_bundle,
                      .clock = clock,
                      .host = m_host,
                      .systemFiles = m_systemFiles,
                      .runLoop = m_runLoop,
                      .statusBar = m_statusBar,
                      .application = m_application,
                      .urlSession = m_urlSession,
                      .userDirectories = m_userDirectories,
                      .loginItems = m_loginItems,
                      .powerEvents = m_powerEvents};
};

} // namespace quindle
