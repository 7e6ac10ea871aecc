#pragma once

#include <memory>

#include <QAbstractButton>
#include <QStringList>
#include <QWidget>

#include "preferences/panes/HelperPreferences.h"
#include "preferences/panes/HelperPreferencesWindow.h"
#include "tests/preferences/SettingsFixture.h"
#include "tests/support/Texts.h"

namespace quindle::test {

/// Records what it is asked for, and which texts and units are stored at that moment.
class LoggingTitle : public FixedTitle
{
public:
    explicit LoggingTitle(SettingsFixture& fixture)
        : m_fixture(fixture)
    {
    }

    QStringList calls;
    QVariantMap suiteThen;
    QVariantMap standardThen;

    void updateStatusBarTitle() override { log(QStringLiteral("title")); }
    void reloadBattery() override { log(QStringLiteral("battery")); }

private:
    void log(const QString& call)
    {
        calls.append(call);
        suiteThen = m_fixture.suite();
        standardThen = m_fixture.standard();
    }

    SettingsFixture& m_fixture;
};

/// The window of the menu bar text on an invented computer; not made before it is asked for.
struct MenuBarFixture : SettingsFixture
{
    LoggingTitle title{*this};
    std::unique_ptr<HelperPreferences> helper = HelperPreferences::initWithWindow(nullptr, settings, title);

    template <typename Widget = QWidget>
    Widget& control(const char* name)
    {
        return *helper->window().findChild<Widget*>(QString::fromLatin1(name));
    }

    /// A radio button of a group.
    QAbstractButton& cell(const char* group, int tag)
    {
        return *control(group).findChildren<QAbstractButton*>().at(tag);
    }
};

} // namespace quindle::test
