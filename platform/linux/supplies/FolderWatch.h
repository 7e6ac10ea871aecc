#pragma once

#include "platform/linux/os/FileDescriptor.h"

namespace quindle {

/// Hears of changes of the files in some folders (inotify). Folders of the kernel's own file systems announce
/// nothing.
class FolderWatch
{
public:
    FolderWatch();

    /// Listens to what is in the folder `name` below `folder`, links followed; "." is `folder` itself. False
    /// when that is not to be had.
    bool add(int folder, const char* name);

    /// Whether anything has changed since it was asked last.
    bool hasChanged();

private:
    FileDescriptor m_inotify;
};

} // namespace quindle
