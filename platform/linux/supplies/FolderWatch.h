#pragma once

#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Notices changes of the files in some folders (inotify). Folders of the kernel's own file systems announce
/// no changes.
class FolderWatch
{
public:
    FolderWatch();

    /// Watches the folder `name` below `folder`, links followed; "." is `folder` itself. False when that is
    /// not possible.
    bool add(int folder, const char* name);

    /// Whether anything has changed since the last call.
    bool hasChanged();

private:
    FileDescriptor m_inotify;
};

} // namespace quindle
