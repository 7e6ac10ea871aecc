#pragma once

#include "platform/UserDirectories.h"

namespace quindle {

/// One Application Support directory: "quindle" in $XDG_DATA_HOME when that is an absolute path, else in
/// ~/.local/share. None for a user without a home folder.
class LinuxUserDirectories : public UserDirectories
{
public:
    QStringList applicationSupportDirectories() const override;
};

} // namespace quindle
