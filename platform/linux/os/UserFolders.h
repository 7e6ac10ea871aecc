#pragma once

#include <QString>

namespace quindle {

/// Where the user's folders are, as the XDG base directories are defined: each is a variable that holds an
/// absolute path, else a place in the home folder. They need not exist. Empty for a user without a home
/// folder.
QString configurationFolder(); ///< $XDG_CONFIG_HOME, ~/.config
QString dataFolder();          ///< $XDG_DATA_HOME, ~/.local/share
QString cacheFolder();         ///< $XDG_CACHE_HOME, ~/.cache

/// The folder of the settings files: "quindle" in the user's configuration folder.
QString settingsFolder();

/// $XDG_RUNTIME_DIR, where it is a folder of the user's in which no other user may write; else empty.
QString runtimeFolder();

} // namespace quindle
