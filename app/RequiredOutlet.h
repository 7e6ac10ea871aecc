#pragma once

#include "common/FatalError.h"

namespace quindle {

/// The outlet itself; one that is missing when it is needed is a programming error and fatal.
template <typename Outlet>
Outlet& required(Outlet* outlet)
{
    if (!outlet)
        fatalError(u"an outlet of the main interface is not connected");
    return *outlet;
}

} // namespace quindle
