// Nothing: CMake compiles headers for a target only if it has a source file.
