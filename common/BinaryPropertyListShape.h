#pragma once

#include <QByteArray>

namespace quindle {

/// How deep arrays and dictionaries may stand in each other. Readers, writers and destructors recurse, so a
/// deeper list would run into the end of the stack.
inline constexpr int mostPropertyListLevels = 512;

/// What is checked of a binary property list before it is read, because the library that reads it recurses as
/// deep as the list is nested, and writes out shared objects once for each use. True when it keeps to that
/// depth, does not hold itself, leads nowhere out of its bytes, and has, written out, at most as many values
/// as a list of its size can need. Says nothing about what stands in it.
bool hasBearableShape(const QByteArray& binary);

} // namespace quindle
