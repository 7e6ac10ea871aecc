#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// The rows of the menu bar setting.
constexpr qint64 standardTitleRow = 0;
constexpr qint64 customTextRow = 1;

/// The title's template, and the one that is kept while the standard title is shown.
struct MenuBarTexts
{
    QString customStatusBar;
    std::optional<QString> statusBarString;

    friend bool operator==(const MenuBarTexts&, const MenuBarTexts&) = default;
};

/// The texts after a row was chosen. The standard row keeps the user's own template and shows the default
/// one; any other row puts the kept one back unless there is another of the user's own by then, so that no
/// text is lost that was written elsewhere.
MenuBarTexts textsAfterChoosing(qint64 row, const MenuBarTexts& texts);

} // namespace quindle
