#pragma once

class QWidget;

namespace quindle {

/// Leaves the wheel to the page that the control is on: turned to scroll the page, it would change a setting
/// in passing.
void leaveWheelToPage(QWidget& control);

} // namespace quindle
