#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/IORegistryContract.h"
#include "tests/platform/linux/power/Patience.h"
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
    /// A sample serves for a second.
    void letTimePass() { m_now += std::chrono::seconds(2); }

    SupplyTree m_tree;
    std::chrono::milliseconds m_now{0};
    PowerSampler m_sampler{m_tree.path(), readDescriptor, [this] { return m_now; }, endlessPatience};
    LinuxRegistry m_registry{m_sampler, {m_tree.pathOf("dmi"), m_tree.pathOf("tree")}};
    LinuxPowerSources m_powerSources{m_sampler};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, IORegistryContract, LinuxBatteries);

} // namespace quindle
