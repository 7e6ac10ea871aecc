#pragma once

#include <dirent.h>

namespace quindle {

/// Closes what opendir() has opened, for a std::unique_ptr.
struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace quindle
