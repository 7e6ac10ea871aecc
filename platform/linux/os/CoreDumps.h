#pragma once

namespace quindle {

/// Keeps the memory of this process, which holds serial numbers, out of all core dumps: a dump then still has
/// the place of the crash and the registers. Debuggers are not kept out. Children inherit it.
void keepMemoryOutOfCoreDumps();

/// Restores the usual setting, for other people's programs. Safe between fork and exec.
void takeWholeCoreDumps();

} // namespace quindle
