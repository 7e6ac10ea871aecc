#include "windows/tray/RemoteItem.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <gtest/gtest.h>

#include "platform/StatusMenu.h"
#include "platform/linux/statusitem/MenuAdaptor.h"
#include "platform/linux/statusitem/NotifierItemAdaptor.h"
#include "platform/linux/statusitem/NotifierTypes.h"
#include "platform/linux/statusitem/Presentation.h"
#include "platform/linux/statusitem/StatusPictures.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"
#include "windows/tray/HelperListener.h"

namespace quindle {
namespace {

/// The helper's own objects on one end of a connection, and their host on the other.
class RemoteItemTest : public testing::Test
{
protected:
    RemoteItemTest()
    {
        menu.addRow({StatusMenu::Kind::Fact, u("Health\t93 %_good"), true, false, {}});
        menu.addRow({StatusMenu::Kind::Separator, {}, true, true, {}});
        menu.addRow({StatusMenu::Kind::Action, u("Quit"), true, true, [this] { ++chosen; }});
        itemObject = std::make_unique<QObject>();
        item = new NotifierItemAdaptor(itemObject.get(), presentation, pictures,
                                       {[this] { ++clicks; }, [](const QString&) {}});
        menuAdaptor = new MenuAdaptor(&menuObject, [] {});
        menuAdaptor->setForm({.commandsFirst = false, .keepsTabs = true});
        menuAdaptor->setMenu(&menu);
        setContents({u("66.0%"), u("#bat34"), {}, u("Discharging")});
        helper = QDBusConnection::connectToPeer(listener.address(), u("helper"));
        helper.registerObject(QLatin1String(itemObjectPath), itemObject.get(),
                              QDBusConnection::ExportAdaptors);
        helper.registerObject(QLatin1String(menuObjectPath), &menuObject, QDBusConnection::ExportAdaptors);
        EXPECT_TRUE(comesTrue([this] { return host.isConnected(); }));
    }

    ~RemoteItemTest() override { close(); }

    void close()
    {
        helper = QDBusConnection(QString());
        QDBusConnection::disconnectFromPeer(u("helper"));
    }

    void setContents(const ItemContents& contents)
    {
        const Presentation last = std::exchange(presentation, present(contents, x11TrayTraits));
        item->announce(last);
    }

    void makeRemote()
    {
        remote = std::make_unique<RemoteItem>(host);
        QObject::connect(remote.get(), &RemoteItem::pixmapsChanged, remote.get(),
                         [this](const auto& changed) { pixmaps.push_back(changed); });
        QObject::connect(remote.get(), &RemoteItem::toolTipChanged, remote.get(),
                         [this](const QString& text) { toolTips += text; });
        QObject::connect(remote.get(), &RemoteItem::menuRowsChanged, remote.get(),
                         [this](const auto& changed) { rows += changed; });
        QObject::connect(remote.get(), &RemoteItem::gone, remote.get(), [this] { isGone = true; });
        remote->start();
        EXPECT_TRUE(comesTrue([this] { return !pixmaps.empty() && !toolTips.empty(); }));
    }

    StatusMenu menu;
    StatusPictures pictures{QStringLiteral(QUINDLE_RESOURCES)};
    Presentation presentation;
    std::unique_ptr<QObject> itemObject;
    QObject menuObject;
    NotifierItemAdaptor* item = nullptr;
    MenuAdaptor* menuAdaptor = nullptr;
    QDBusConnection helper{QString()};
    QDBusConnection host{QString()};
    HelperListener listener{[this](const QDBusConnection& connection) { host = connection; }};
    std::unique_ptr<RemoteItem> remote;
    std::vector<QList<NotifierPixmap>> pixmaps;
    QStringList toolTips;
    QList<MenuRowProperties> rows;
    bool isGone = false;
    int clicks = 0;
    int chosen = 0;
};

TEST_F(RemoteItemTest, AnX11TrayGetsEverySizeItMayHaveRoomFor)
{
    makeRemote();
    QList<int> sizes;
    for (const NotifierPixmap& pixmap : pixmaps.back()) {
        EXPECT_EQ(pixmap.height, pixmap.width);
        EXPECT_EQ(pixmap.pixels.size(), 4 * pixmap.width * pixmap.width);
        sizes += pixmap.width;
    }
    EXPECT_EQ(sizes, (QList<int>{16, 22, 24, 32, 44, 48}));
}

TEST_F(RemoteItemTest, TheToolTipIsWhole)
{
    makeRemote();
    EXPECT_EQ(toolTips, QStringList(u("66.0%\nDischarging")));
}

TEST_F(RemoteItemTest, HearsWhatChangesAndNothingElse)
{
    makeRemote();
    setContents({u("66.0%"), u("#bat34"), {}, u("Charging")});
    EXPECT_TRUE(comesTrue([this] { return toolTips.size() == 2; }));
    EXPECT_EQ(toolTips.back(), u("66.0%\nCharging"));
    setContents({u("66.0%"), u("#bat04"), {}, u("Charging")});
    EXPECT_TRUE(comesTrue([this] { return pixmaps.size() == 2; }));
    EXPECT_NE(pixmaps[0].front().pixels, pixmaps[1].front().pixels);
    EXPECT_EQ(toolTips.size(), 2);
}

TEST_F(RemoteItemTest, AClickArrives)
{
    makeRemote();
    remote->activate({3, 4});
    EXPECT_TRUE(comesTrue([this] { return clicks == 1; }));
}

TEST_F(RemoteItemTest, TheMenuIsThatOfTheItemWithItsColumns)
{
    makeRemote();
    std::optional<MenuNode> answer;
    remote->askForMenu([&answer](const MenuNode& node) { answer = node; });
    ASSERT_TRUE(comesTrue([&answer] { return answer.has_value(); }));
    ASSERT_EQ(answer->children.size(), 3);
    const auto first = qdbus_cast<MenuNode>(answer->children.at(0).variant());
    EXPECT_EQ(first.id, 1);
    EXPECT_EQ(first.properties.value(u("label")), u("Health\t93 %__good"));
    EXPECT_EQ(first.properties.value(u("enabled")), false);
}

TEST_F(RemoteItemTest, ARowThatIsChosenDoesWhatItDoes)
{
    makeRemote();
    remote->choose(3);
    EXPECT_TRUE(comesTrue([this] { return chosen == 1; }));
}

TEST_F(RemoteItemTest, ChangedRowsArrive)
{
    makeRemote();
    menu.setText(1, u("Health\t92 %"));
    menuAdaptor->announceChanges();
    ASSERT_TRUE(comesTrue([this] { return rows.size() == 1; }));
    EXPECT_EQ(rows.front().id, 1);
    EXPECT_EQ(rows.front().properties.value(u("label")), u("Health\t92 %"));
}

TEST_F(RemoteItemTest, TheEndOfTheConnectionIsAnnounced)
{
    makeRemote();
    close();
    EXPECT_TRUE(comesTrue([this] { return isGone; }));
}

} // namespace
} // namespace quindle
