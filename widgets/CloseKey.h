#pragma once

class QKeyEvent;
class QWidget;

namespace quindle {

/// Whether a key press closes the window: Control is held (other modifiers may be, too) and the key types "w"
/// without them. Shift makes it another letter, "W", which closes nothing.
bool isCloseKey(const QKeyEvent& event);

/// Whether a key press that no control has taken closes its window: the close key or Escape.
bool closesWindow(const QKeyEvent& event);

/// Makes the control that is being edited commit its text, as if it had lost the keyboard: for a window about
/// to close, since the toolkit would drop the text. The control keeps the keyboard.
void finishEditing(const QWidget& window);

/// Makes the close key close every dialog of this process, the toolkit's own included. Escape does so
/// already.
void closeDialogsByKey();

} // namespace quindle
