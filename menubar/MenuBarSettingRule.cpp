#include "menubar/MenuBarSettingRule.h"

#include "menubar/TitleTemplate.h"

namespace quindle {

MenuBarTexts textsAfterChoosing(qint64 before, qint64 row, const MenuBarTexts& texts)
{
    const bool isDefault = texts.customStatusBar == defaultTitleTemplate();
    if (row == standardTitleRow)
        return isDefault ? texts : MenuBarTexts{defaultTitleTemplate(), texts.customStatusBar};
    if (before == standardTitleRow && isDefault && texts.parked)
        return {*texts.parked, texts.parked};
    return texts;
}

qint64 rowInForce(qint64 stored, const QString& customStatusBar)
{
    const bool isCustom = stored == customTextRow || customStatusBar != defaultTitleTemplate();
    return isCustom ? customTextRow : standardTitleRow;
}

} // namespace quindle
