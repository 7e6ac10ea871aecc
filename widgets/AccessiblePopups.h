#pragma once

namespace quindle {

/// Lets assistive technologies find open popups among the windows of the application, where the toolkit
/// leaves out windows of type popup. That is meant for menus; a view with all that the program shows would
/// not be found. To be called before the QApplication is made.
void exposePopups();

} // namespace quindle
