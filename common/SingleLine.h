#pragma once

#include <QString>

namespace quindle {

/// The text on one line: line breaks, tabs and other control characters become blanks.
QString singleLine(const QString& text);

/// At most `length` characters as a person counts them, an ellipsis included where the text is cut.
QString elided(const QString& text, int length);

} // namespace quindle
