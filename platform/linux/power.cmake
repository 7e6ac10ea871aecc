# The registry and the power sources, from /sys.
target_sources(quindle_platform_linux PRIVATE
    power/BatteryRules.cpp
    power/BatteryTimes.cpp
    power/ChargeRules.cpp
    power/CombinedBattery.cpp
    power/DriverFigures.cpp
    power/FileReader.cpp
    power/FolderWatch.cpp
    power/LinuxPowerEvents.cpp
    power/LinuxPowerSources.cpp
    power/LinuxRegistry.cpp
    power/PowerSampler.cpp
    power/PowerSourceDescription.cpp
    power/ReadingThread.cpp
    power/RegistryValues.cpp
    power/SlowFiles.cpp
    power/Supply.cpp
    power/SupplyAttributes.cpp
    power/SupplyFiles.cpp
    power/SupplyFolder.cpp
    power/SupplyMemory.cpp
    power/SupplyReader.cpp
    power/SupplyReading.cpp
    power/SystemPower.cpp
    power/TimeEstimator.cpp
)
