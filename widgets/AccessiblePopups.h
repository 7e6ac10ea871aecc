#pragma once

namespace quindle {

/// Lets assistive technologies find open popups among the windows of the application, where the toolkit
/// leaves out what is a popup by type: that is for menus, and a view with the whole content of the program
/// would be no part of it. To be called before the QApplication is made.
void exposePopups();

} // namespace quindle
