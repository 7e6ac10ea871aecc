#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// The rows of the menu bar setting.
constexpr qint64 standardTitleRow = 0;
constexpr qint64 customTextRow = 1;

/// The title's template, and the one that is parked while the standard title is shown.
struct MenuBarTexts
{
    QString customStatusBar;
    std::optional<QString> parked;

    friend bool operator==(const MenuBarTexts&, const MenuBarTexts&) = default;
};

/// The texts after `row` was chosen where `before` was stored. The standard row parks the user's own template
/// and shows the default one. Any other row after the standard one puts the parked one back, unless the user
/// has written another one by then, so that no text written elsewhere is lost.
MenuBarTexts textsAfterChoosing(qint64 before, qint64 row, const MenuBarTexts& texts);

/// The row to show as selected: that of the template in force. A template that was written elsewhere is a
/// custom text, whatever row is stored.
qint64 rowInForce(qint64 stored, const QString& customStatusBar);

} // namespace quindle
