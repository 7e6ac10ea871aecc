#pragma once

class QKeyEvent;
class QWidget;

namespace quindle {

/// Whether a key press closes the window: Control is held (other modifiers may be, too) and the key types "w"
/// without them. Shift makes it another letter, "W", which closes nothing.
bool isCloseKey(const QKeyEvent& event);

/// Whether a key press that no control has taken closes its window: the close key or Escape.
bool closesWindow(const QKeyEvent& event);

/// Has the control that is written in take what it holds, as if it were left: before its window closes, when
/// the toolkit would forget it. The control keeps the keyboard.
void finishEditing(const QWidget& window);

/// From now on the close key closes dialogs of this process, those of the toolkit's own too. Escape does
/// anyway.
void closeDialogsByKey();

} // namespace quindle
