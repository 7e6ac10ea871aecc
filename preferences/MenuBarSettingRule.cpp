#include "preferences/MenuBarSettingRule.h"

#include "menubar/TitleTemplate.h"

namespace quindle {

MenuBarTexts textsAfterChoosing(qint64 row, const MenuBarTexts& texts)
{
    const bool isDefault = texts.customStatusBar == defaultTitleTemplate();
    if (row == standardTitleRow)
        return isDefault ? texts : MenuBarTexts{defaultTitleTemplate(), texts.customStatusBar};
    if (isDefault && texts.statusBarString)
        return {*texts.statusBarString, texts.statusBarString};
    return texts;
}

} // namespace quindle
