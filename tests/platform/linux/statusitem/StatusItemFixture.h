#pragma once

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDeadlineTimer>
#include <gtest/gtest.h>

#include "platform/Image.h"
#include "platform/StatusMenu.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "platform/linux/statusitem/NotifierTypes.h"
#include "tests/platform/linux/statusitem/FakeTrayHost.h"
#include "tests/platform/linux/statusitem/PrivateBus.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/Texts.h"

namespace quindle {

template <typename Type>
Type demarshalled(const QVariant& value)
{
    Type result;
    value.value<QDBusArgument>() >> result;
    return result;
}

/// A status item with a menu, on a bus of its own with a host that may appear.
class StatusItemFixture : public testing::Test
{
protected:
    static constexpr auto itemPath = "/StatusNotifierItem";
    static constexpr auto itemInterface = "org.kde.StatusNotifierItem";
    static constexpr auto menuObject = "/MenuBar";
    static constexpr auto menuInterface = "com.canonical.dbusmenu";

    StatusItemFixture()
    {
        menu.addRow({StatusMenu::Kind::Fact, u("87.0%"), true, true, {}});
        menu.addRow({StatusMenu::Kind::OpenView, u("Show Battery..."), true, true, {}});
        menu.addRow({StatusMenu::Kind::Separator, {}, true, true, {}});
        menu.addRow({StatusMenu::Kind::Action, u("Quit_all"), true, true, [this] { ++chosen; }});
        menu.setViewOpener([this] { ++opened; });
        menu.setViewToggler([this] { ++toggled; });
    }

    void makeItem(std::chrono::milliseconds registrationCheck = std::chrono::milliseconds(3000))
    {
        item = std::make_unique<LinuxStatusItem>(
            bus.connect(), runLoop,
            StatusItemSurroundings{QStringLiteral(QUINDLE_RESOURCES), currentDesktop,
                                   [this] { return choice; }, registrationCheck});
        item->setTitle(u("87.0%"));
        item->setFallbackText(u("87"));
        item->setToolTipText(u("R&D"));
        item->setImage(std::make_shared<Image>(u("#bat34")));
        item->setMenu(&menu);
    }

    void makeRegisteredItem()
    {
        ASSERT_TRUE(host.appear());
        makeItem();
        ASSERT_TRUE(comesTrue([this] { return host.registrations() == 1; }));
        settle();
        host.takeSignals();
    }

    /// When the answer is there, everything that was sent before it is there as well.
    void settle()
    {
        QCoreApplication::processEvents();
        host.itemProperty("Status");
    }

    QList<NotifierPixmap> pixmaps(const char* name)
    {
        return demarshalled<QList<NotifierPixmap>>(host.itemProperty(name));
    }

    LinuxRunLoop runLoop;
    PrivateBus bus;
    FakeTrayHost host{bus.connect()};
    StatusMenu menu;
    QString choice;
    QString currentDesktop;
    int opened = 0;
    int toggled = 0;
    int chosen = 0;
    std::unique_ptr<LinuxStatusItem> item;
};

} // namespace quindle
