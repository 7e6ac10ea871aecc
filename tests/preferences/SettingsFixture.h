#pragma once

#include <optional>
#include <vector>

#include <QStringList>

#include "platform/LoginItems.h"
#include "preferences/panes/BoundSettings.h"
#include "preferences/panes/StatusBarTitle.h"
#include "settings/ApplicationPreferences.h"
#include "tests/support/FakePlatform.h"

namespace quindle::test {

/// The session's login items as file URLs; `setEnabled` is only recorded.
class RecordedLoginItems : public LoginItems
{
public:
    QStringList urls;
    QStringList switches; ///< "identifier on" or "identifier off", in order

    std::optional<std::vector<Item>> snapshot() override
    {
        std::vector<Item> items;
        for (Item item = 0; item < urls.size(); ++item)
            items.push_back(item);
        return items;
    }
    std::optional<QString> resolve(Item item) override { return urls.at(item); }
    void insertBeforeFirst(const QString& fileUrl) override { urls.prepend(fileUrl); }
    void remove(Item item) override { urls.removeAt(item); }
    void setEnabled(const QString& identifier, bool enabled) override
    {
        switches.append(identifier + (enabled ? QStringLiteral(" on") : QStringLiteral(" off")));
    }
};

/// A battery at 66.7 %, discharging.
class FixedTitle : public StatusBarTitle
{
public:
    std::optional<TitleValues> values =
        TitleValues{30.0, false, QStringLiteral("3:42"), 66.66, -12.44, -1043, 293};

    std::optional<ShownItem> shown; ///< by the panel

    void updateStatusBarTitle() override {}
    void reloadBattery() override {}
    std::optional<TitleValues> titleValues() const override { return values; }
    Punctuality watchValues() const override { return m_watched; }
    std::optional<ShownItem> shownItem() const override { return shown; }

    bool isWatched() const { return m_watched.use_count() > 1; }

private:
    Punctuality m_watched = std::make_shared<int>();
};

/// The settings on an invented computer.
struct SettingsFixture
{
    explicit SettingsFixture(bool hasSuite = true)
        : preferences(preparedPlatform(hasSuite))
    {
    }

    FakePlatform computer;
    RecordedLoginItems loginItems;
    ApplicationPreferences preferences;
    BoundSettings settings{preferences, computer.userDefaults.standardDefaults, loginItems, computer.bundle,
                           computer.distributedNotificationCenter};

    QVariantMap& suite() { return computer.userDefaults.suiteDefaults.values; }
    QVariantMap& standard() { return computer.userDefaults.standardDefaults.values; }

private:
    const Platform& preparedPlatform(bool hasSuite)
    {
        computer.userDefaults.suiteAvailable = hasSuite;
        return computer.platform;
    }
};

} // namespace quindle::test
