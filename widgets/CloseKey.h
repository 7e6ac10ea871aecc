#pragma once

class QKeyEvent;

namespace quindle {

/// Whether a key press closes the window: Control is held (other modifiers may be, too) and the key types "w"
/// without them. Shift makes it another letter, "W", which closes nothing.
bool isCloseKey(const QKeyEvent& event);

} // namespace quindle
