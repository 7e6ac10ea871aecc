# Settings, the main loop, notifications, and what one process of a session says to another.
target_sources(quindle_platform_linux PRIVATE
    BusLink.cpp
    BusLink.h
    FileLock.cpp
    FileReplacement.cpp
    LinuxApplication.cpp
    LinuxNotifications.cpp
    LinuxNotifications.h
    LinuxRunLoop.cpp
    LinuxUserDefaults.cpp
    PropertyListFile.cpp
    SingleInstance.cpp
    TimerSchedule.cpp
)
target_link_libraries(quindle_platform_linux PUBLIC Qt6::Core PRIVATE Qt6::Gui Qt6::DBus)
set_target_properties(quindle_platform_linux PROPERTIES AUTOMOC ON)
