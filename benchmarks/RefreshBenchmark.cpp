// What one refresh costs: the battery's and the status item's, on the files of real computers, with real
// settings files. Each benchmark is named after the folder of tests/data/sysfs that it reads; "batteries" has
// that many copies of one of them.

#include <array>
#include <filesystem>
#include <string>
#include <thread>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PowerSampler.h"
#include "platform/linux/settings/LinuxUserDefaults.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "platform/linux/system/LinuxHost.h"
#include "platform/recorded/RecordedPlatform.h"
#include "settings/ApplicationPreferences.h"

using namespace quindle;

namespace {

class UnconnectedStatusBar : public StatusBar
{
public:
    explicit UnconnectedStatusBar(RunLoop& runLoop)
        : m_runLoop(runLoop)
    {
    }

    std::unique_ptr<StatusItem> statusItemWithLength(double /*length*/) override
    {
        return std::make_unique<LinuxStatusItem>(QDBusConnection(QStringLiteral("none")), m_runLoop,
                                                 StatusItemSurroundings{});
    }

private:
    RunLoop& m_runLoop;
};

class VersionedBundle : public Bundle
{
    QString path() const override { return QStringLiteral("/"); }
    std::optional<QVariantMap> infoDictionary() const override
    {
        return QVariantMap{{QStringLiteral("CFBundleVersion"), QStringLiteral("1")}};
    }
};

std::string suppliesOf(const std::string& machine)
{
    return QUINDLE_TEST_DATA "/sysfs/" + machine + "/class/power_supply";
}

/// A launched helper on the files of one computer. Its refreshes are 5 s apart, so each takes a new sample.
class Helper
{
public:
    Helper(const std::string& supplies, bool hasRealItem)
        : m_sampler(supplies, readDescriptor, [this] { return m_now; })
        , m_registry(m_sampler, {})
        , m_powerSources(m_sampler)
        , m_userDefaults(m_settings.path())
        , m_others({}, m_bundle)
        , m_statusBar(m_others.runLoop)
        , m_platform(platform(hasRealItem))
    {
        m_userDefaults.suite(QStringLiteral("group.fernhollow.Quindle"))
            ->setObject(QStringLiteral("customStatusBar"), QStringLiteral("%p% %r %w W %mA mA %t %l %s"));
        m_preferences = std::make_unique<ApplicationPreferences>(m_platform);
        m_delegate = std::make_unique<HelperAppDelegate>(m_platform, *m_preferences, m_interface,
                                                         &QDMac::init, noControllers);
        m_delegate->applicationDidFinishLaunching();
        QCoreApplication::processEvents();
        // Settings that have only just been written are read again at each look.
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
    }

    void passTime() { m_now += std::chrono::seconds(5); }

    void refreshBattery() { m_delegate->myMac().Battery()->updateData(); }

    void refreshItem()
    {
        m_delegate->updateStatusBarTitle();
        QCoreApplication::sendPostedEvents();
    }

private:
    Platform platform(bool hasRealItem)
    {
        const Platform platform = m_others.platform().with({.registry = &m_registry,
                                                            .powerSources = &m_powerSources,
                                                            .userDefaults = &m_userDefaults,
                                                            .clock = &m_clock});
        return hasRealItem ? platform.with({.statusBar = &m_statusBar}) : platform;
    }

    std::chrono::milliseconds m_now{0};
    QTemporaryDir m_settings;
    PowerSampler m_sampler;
    LinuxRegistry m_registry;
    LinuxPowerSources m_powerSources;
    LinuxUserDefaultsDatabases m_userDefaults;
    LinuxClock m_clock;
    VersionedBundle m_bundle;
    RecordedPlatform m_others;
    UnconnectedStatusBar m_statusBar;
    Platform m_platform;
    MainInterface m_interface;
    std::unique_ptr<ApplicationPreferences> m_preferences;
    std::unique_ptr<HelperAppDelegate> m_delegate;
};

void refresh(benchmark::State& state, const char* machine, bool hasRealItem)
{
    Helper helper(suppliesOf(machine), hasRealItem);
    for (auto _ : state) {
        helper.passTime();
        helper.refreshBattery();
        helper.refreshItem();
    }
}

void refreshBattery(benchmark::State& state, const char* machine)
{
    Helper helper(suppliesOf(machine), false);
    for (auto _ : state) {
        helper.passTime();
        helper.refreshBattery();
    }
}

void refreshItem(benchmark::State& state, const char* machine)
{
    Helper helper(suppliesOf(machine), false);
    for (auto _ : state) {
        helper.passTime();
        helper.refreshItem();
    }
}

/// A computer with an adapter and that many batteries.
void refreshBatteries(benchmark::State& state)
{
    namespace fs = std::filesystem;
    const QTemporaryDir folder;
    const fs::path supplies = folder.path().toStdString();
    const fs::path real = suppliesOf("thinkpad-t430s");
    fs::copy(real / "AC", supplies / "AC");
    for (int battery = 0; battery < state.range(0); ++battery)
        fs::copy(real / "BAT0", supplies / ("BAT" + std::to_string(battery)));
    Helper helper(supplies, false);
    for (auto _ : state) {
        helper.passTime();
        helper.refreshBattery();
        helper.refreshItem();
    }
    state.SetComplexityN(state.range(0));
}

void registerBenchmarks()
{
    constexpr int mostBatteries = 64;
    benchmark::RegisterBenchmark("batteries", refreshBatteries)
        ->RangeMultiplier(2)
        ->Range(1, mostBatteries)
        ->Complexity(benchmark::oN);
    constexpr std::array machines = {"framework-13-discharging-93", "thinkpad-t430s",
                                     "thinkpad-procfs-lnv45n1", "macbookpro14-1-sbs-worn"};
    using namespace std::string_literals;
    for (const char* machine : machines) {
        benchmark::RegisterBenchmark(("refresh/"s + machine).c_str(), refresh, machine, false);
        benchmark::RegisterBenchmark(("refreshWithRealItem/"s + machine).c_str(), refresh, machine, true);
        benchmark::RegisterBenchmark(("batteryAlone/"s + machine).c_str(), refreshBattery, machine);
        benchmark::RegisterBenchmark(("itemAlone/"s + machine).c_str(), refreshItem, machine);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
