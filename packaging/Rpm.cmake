# The RPM, made by `cpack -G RPM`; ./package --rpm does so beside the Debian package. The libraries that it needs are
# found by rpmbuild itself, by the names that are in them (libQt6Core.so.6), which are the same in every distribution.

string(TIMESTAMP QUINDLE_RPM_CHANGELOG_DATE "%a %b %d %Y" UTC)
configure_file(rpm/changelog.in "${documents}/rpm-changelog" @ONLY)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_PACKAGE_LICENSE LicenseRef-not-granted)
set(CPACK_RPM_PACKAGE_GROUP Applications/System)
set(CPACK_RPM_PACKAGE_VENDOR "Quindle Helper maintainers")
set(CPACK_PACKAGE_RELOCATABLE OFF)
set(CPACK_RPM_PACKAGE_SUMMARY "Battery charge, health and time in the panel")
# Debian marks an empty line with a point.
string(REPLACE "\n.\n" "\n\n" CPACK_RPM_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_RPM_COMPRESSION_TYPE xz)
set(CPACK_RPM_CHANGELOG_FILE "${documents}/rpm-changelog")
set(CPACK_RPM_PACKAGE_REQUIRES hicolor-icon-theme) # whose folders the icons are in
# Folders that other packages share.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
    /usr /usr/bin /usr/lib /usr/share /usr/share/applications /usr/share/doc /usr/share/metainfo
    /usr/share/man /usr/share/man/man1
    /usr/share/icons /usr/share/icons/hicolor
    /usr/share/icons/hicolor/48x48 /usr/share/icons/hicolor/48x48/apps
    /usr/share/icons/hicolor/128x128 /usr/share/icons/hicolor/128x128/apps
    /usr/share/icons/hicolor/scalable /usr/share/icons/hicolor/scalable/apps)
foreach(language ${QUINDLE_LANGUAGES})
    list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/share/man/${language} /usr/share/man/${language}/man1)
endforeach()
# The same bytes every time, as the Debian package: dates are SOURCE_DATE_EPOCH's, no machine is named. Nobody else uses the
# plug-in. The text library is opened by name when it is needed. CPack has no variables for the last two.
set(CPACK_RPM_SPEC_MORE_DEFINE "%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1
%define _buildhost localhost
%define _build_id_links none
%define __provides_exclude_from ^.*/PlugIns/.*$
Packager: ${QUINDLE_MAINTAINER}
Recommends: libraqm.so.0()(64bit)")
