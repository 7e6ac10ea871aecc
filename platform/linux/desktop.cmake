# Settings, the main loop, notifications, and what one process of a session says to another.
target_sources(quindle_platform_linux PRIVATE
    AutostartEntry.cpp
    BusAddress.cpp
    BusLink.cpp
    BusLink.h
    DesktopEntry.cpp
    DetachedProcess.cpp
    EndOfProcess.cpp
    FileLock.cpp
    FileReplacement.cpp
    LinuxApplication.cpp
    LinuxLoginItems.cpp
    LinuxNotifications.cpp
    LinuxNotifications.h
    LinuxRunLoop.cpp
    LinuxUserDefaults.cpp
    LinuxUserDirectories.cpp
    ProgramFile.cpp
    PropertyListFile.cpp
    SingleInstance.cpp
    TimerSchedule.cpp
    UserFolders.cpp
    X11Desktop.cpp
)
