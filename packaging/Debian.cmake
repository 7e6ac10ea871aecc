# The Debian package, made by `cpack` in the build folder; ./package does so with all that makes it reproducible.

set(QUINDLE_MAINTAINER "Quindle Helper maintainers <quindle-helper@fernhollow.com>"
    CACHE STRING "Who answers for the package")
string(TIMESTAMP QUINDLE_CHANGELOG_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)

set(doc share/doc/quindle-helper)
configure_file(debian/changelog.in "${documents}/changelog" @ONLY)
quindle_compressed("${documents}/changelog" changelog ${doc})
install(FILES debian/copyright DESTINATION ${doc})
install(FILES fleet/prometheus.yml fleet/quindle-dashboard.json fleet/quindle-metrics.service fleet/quindle-metrics.timer
    fleet/quindle-rules.yml DESTINATION ${doc}/examples)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quindle-helper)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${QUINDLE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "battery charge, health and time in the panel")
set(CPACK_PACKAGE_DESCRIPTION
    "Quindle Helper sits in the tray of a desktop panel, reads the batteries of a
portable computer and shows a title made from a template and an icon. A click
opens a view of charge, power, remaining time, health, cycles, age and
temperature.
.
It works in StatusNotifierItem and XEmbed trays, on X11 and Wayland, combines
several batteries, and sends nothing anywhere unless it is allowed to.
.
quindle shows the same and everything else that the batteries report in a
window; quindle-inspect prints it in a terminal, as text or JSON.")
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 1)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Without a session bus only X11 trays work, without the SVG loader GNOME shows no icon, without the plug-in only X11
# programs run on Wayland desktops, and without the text library letters that join do not, where the helper draws them;
# without the toolkit's translations its own texts, as in dialogs of files, are English.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "default-dbus-session-bus | dbus-session-bus, librsvg2-common, qt6-wayland, libraqm0, qt6-translations-l10n")
