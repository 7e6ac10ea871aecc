# The small services: what the system says of itself, and files.
target_sources(quindle_platform_linux PRIVATE
    CoreDumps.cpp
    LinuxBundle.cpp
    LinuxClock.cpp
    LinuxHost.cpp
    LinuxInstallationSource.cpp
    LinuxSystemFiles.cpp
    LinuxWorkspace.cpp
    SmallFile.cpp
)
