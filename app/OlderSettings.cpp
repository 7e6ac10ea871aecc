#include "app/OlderSettings.h"

#include <QLoggingCategory>

#include "common/NumberConversion.h"
#include "menubar/MenuBarSettingRule.h"
#include "menubar/TitleTemplate.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(olderSettingsLog, "quindle.settings")

/// An older helper that parked a text stored the standard row and wrote the default template in its place;
/// neither of them is ever stored alone.
bool hasParkedByOlderHelper(const UserDefaults& standard, const UserDefaults& suite)
{
    const auto row = convertToInteger(standard.object(Keys::menuBarSetting.name()));
    const QVariant shown = suite.object(Keys::customStatusBar.name());
    return row && row != customTextRow && convertToText(shown) == defaultTitleTemplate() &&
           !standard.object(Keys::parkedCustomStatusBar.name()).isValid();
}

} // namespace

void copyTextParkedByOlderHelper(UserDefaultsDatabases& databases)
{
    UserDefaults& standard = databases.standard();
    const UserDefaults* suite = databases.suite(groupDatabaseName());
    if (!suite || !hasParkedByOlderHelper(standard, *suite))
        return;
    const auto parked = convertToText(standard.object(Keys::statusBarString.name()));
    if (!parked)
        return;
    standard.setObject(Keys::parkedCustomStatusBar.name(), *parked);
    qCInfo(olderSettingsLog) << "the menu bar text of an older helper is copied from statusBarString";
}

} // namespace quindle
