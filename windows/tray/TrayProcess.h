#pragma once

namespace quindle {

/// Holds the icon of the helper's status item in an X11 tray until the helper closes the connection or ends.
/// The helper finds the address to connect to on standard output. Does not return; needs a QApplication.
[[noreturn]] void runTrayProcess();

} // namespace quindle
