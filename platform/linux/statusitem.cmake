target_sources(quindle_platform_linux PRIVATE
    statusitem/HostTraits.cpp
    statusitem/LinuxStatusBar.cpp
    statusitem/LinuxStatusItem.cpp
    statusitem/MenuAdaptor.cpp
    statusitem/MenuLayout.cpp
    statusitem/MenuTypes.cpp
    statusitem/NotifierItemAdaptor.cpp
    statusitem/NotifierTypes.cpp
    statusitem/Presentation.cpp
    statusitem/StatusPictures.cpp
    statusitem/StatusTexts.cpp
    statusitem/TrayIcon.cpp
    statusitem/WatcherLink.cpp
)
target_link_libraries(quindle_platform_linux PUBLIC Qt6::Gui Qt6::Widgets Qt6::DBus PRIVATE Qt6::Svg)
set_target_properties(quindle_platform_linux PROPERTIES AUTOMOC ON)
