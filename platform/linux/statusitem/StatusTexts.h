#pragma once

#include <QString>

namespace quindle {

/// The text as the bus can carry it: text over the bus ends at the first NUL, so a NUL is replaced.
QString busText(const QString& text);

/// Tool tip text for hosts that parse it as markup.
QString escapedMarkup(const QString& text);

/// The same for tool tips that are markup only if they look like it.
QString literalPanelToolTip(const QString& text);

/// A menu row's label: no mnemonic, one line. A tab, which separates caption and value, becomes a colon: not
/// every host aligns what follows a tab.
QString menuLabel(const QString& text, bool keepsTab = false);

} // namespace quindle
