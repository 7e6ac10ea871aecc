# The registry and the power sources, from /sys.
target_sources(quindle_platform_linux PRIVATE
    power/AttributeFile.cpp
    power/BatteryRules.cpp
    power/BatteryTimes.cpp
    power/CombinedBattery.cpp
    power/LinuxPowerEvents.cpp
    power/LinuxPowerSources.cpp
    power/LinuxRegistry.cpp
    power/PowerSnapshot.cpp
    power/PowerSourceDescription.cpp
    power/RegistryValues.cpp
    power/SlowReads.cpp
    power/SupplyAttributes.cpp
    power/SupplyDirectory.cpp
    power/TimeEstimator.cpp
)
