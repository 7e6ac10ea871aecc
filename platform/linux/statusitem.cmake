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
    statusitem/StripPainting.cpp
    statusitem/TextDrawing.cpp
    statusitem/TrayIcon.cpp
    statusitem/WatcherLink.cpp
)
