#pragma once

namespace quindle {

/// Keeps the memory of this process out of core dumps, whoever takes them, because it holds serial numbers:
/// of a crash they then tell the place and the registers. Debuggers are not kept out. Children inherit it.
void keepMemoryOutOfCoreDumps();

/// Puts it back to what is usual, for programs of others. Safe between fork and exec.
void takeWholeCoreDumps();

} // namespace quindle
