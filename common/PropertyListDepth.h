#pragma once

#include <QByteArray>

namespace quindle {

/// How deep arrays and dictionaries may stand in each other. Readers, writers and destructors recurse, so a
/// deeper list would run into the end of the stack.
inline constexpr int mostPropertyListLevels = 512;

/// Whether a binary property list keeps to that depth. False also for one whose tables lead out of its bytes.
bool hasBearableDepth(const QByteArray& binary);

} // namespace quindle
