# The registry and the power sources from /sys, and the small services.
target_sources(quindle_platform_linux PRIVATE
    AttributeFile.cpp
    BatteryRules.cpp
    BatteryTimes.cpp
    CombinedBattery.cpp
    LinuxBundle.cpp
    LinuxClock.cpp
    LinuxHost.cpp
    LinuxInstallationSource.cpp
    LinuxPowerEvents.cpp
    LinuxPowerSources.cpp
    LinuxRegistry.cpp
    LinuxSystemFiles.cpp
    LinuxWorkspace.cpp
    PowerSnapshot.cpp
    PowerSourceDescription.cpp
    RegistryValues.cpp
    SlowReads.cpp
    SmallFile.cpp
    SupplyAttributes.cpp
    SupplyDirectory.cpp
    TimeEstimator.cpp
)
