# Settings, the main loop, notifications, and what one process of a session says to another.
target_sources(quindle_platform_linux PRIVATE
    BusAddress.cpp
    BusLink.cpp
    BusLink.h
    FileLock.cpp
    FileReplacement.cpp
    LinuxApplication.cpp
    LinuxNotifications.cpp
    LinuxNotifications.h
    LinuxRunLoop.cpp
    LinuxUserDefaults.cpp
    LinuxUserDirectories.cpp
    PropertyListFile.cpp
    SingleInstance.cpp
    TimerSchedule.cpp
    X11Desktop.cpp
)
