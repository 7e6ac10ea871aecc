#pragma once

#include "platform/UserDirectories.h"

namespace quindle {

/// One Application Support directory: "quindle" in the user's data folder. None without one.
class LinuxUserDirectories : public UserDirectories
{
public:
    QStringList applicationSupportDirectories() const override;
};

} // namespace quindle
