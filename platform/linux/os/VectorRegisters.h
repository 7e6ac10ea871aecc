#pragma once

namespace quindle {

/// Clears the vector registers of the calling thread. Copying leaves the last bytes of a text in them, and
/// core dumps hold the registers of every thread. Does nothing on processors other than x86-64.
void clearVectorRegisters();

} // namespace quindle
