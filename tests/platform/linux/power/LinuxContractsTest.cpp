#include "platform/linux/power/BatteryTimes.h"
#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/SupplyDirectory.h"
#include "tests/platform/IORegistryContract.h"
#include "tests/platform/linux/power/SupplyTree.h"

namespace quindle {

class LinuxBatteries
{
public:
    IORegistry& registry() { return m_registry; }
    PowerSources& powerSources() { return m_powerSources; }

    void plugIn(qint64 milliampHours)
    {
        m_tree.add("BAT0", {{"type", "Battery"},
                            {"status", "Discharging"},
                            {"charge_full", "5000000"},
                            {"charge_now", std::to_string(milliampHours * 1000)}});
        letTimePass();
    }

    void pullOut()
    {
        m_tree.remove("BAT0");
        letTimePass();
    }

private:
    /// Supplies that come and go are looked for about once a second.
    void letTimePass() { m_now += std::chrono::seconds(2); }

    SupplyTree m_tree;
    std::chrono::milliseconds m_now{0};
    SupplyDirectory m_supplies{m_tree.path(), readDescriptor, [this] { return m_now; }};
    BatteryTimes m_times{[this] { return m_now; }};
    LinuxRegistry m_registry{m_supplies, m_times, {m_tree.pathOf("dmi"), m_tree.pathOf("tree")}};
    LinuxPowerSources m_powerSources{m_supplies, m_times};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, IORegistryContract, LinuxBatteries);

} // namespace quindle
