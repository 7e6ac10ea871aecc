#pragma once

#include <QtGlobal>

namespace quindle {

/// What the process holds at a moment.
struct Measures
{
    qint64 heap = 0;     ///< bytes in use, as the allocator counts them
    qint64 resident = 0; ///< bytes
    int openFiles = 0;

    static Measures now();
};

} // namespace quindle
