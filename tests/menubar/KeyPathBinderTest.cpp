#include "menubar/KeyPathBinder.h"

#include <gtest/gtest.h>

#include <QProgressBar>
#include <QPushButton>

#include "menubar/FactRow.h"
#include "menubar/ObjectController.h"
#include "menubar/PlainLabel.h"
#include "menubar/menuIndicator.h"
#include "tests/menubar/FakeModels.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct KeyPathBinderTest : testing::Test
{
    KeyPathBinderTest()
    {
        mac.battery = &battery;
        controller.addObject(&mac);
    }

    template <class Widget>
    Widget* add(std::initializer_list<std::pair<const char*, const char*>> properties)
    {
        auto* widget = new Widget(&root);
        for (const auto& [name, value] : properties)
            widget->setProperty(name, QString::fromUtf8(value));
        return widget;
    }

    test::FakeBattery battery;
    test::FakeMac mac;
    ObjectController controller;
    QWidget root;
};

TEST_F(KeyPathBinderTest, ShowsAndFollows)
{
    auto* label = add<PlainLabel>({{"keyPath", "Battery.BatteryState"}});
    auto* row =
        add<FactRow>({{"captionPattern", "{Name}"}, {"displayPattern", "{Battery.WattThroughput:watts}"}});
    auto* bar = add<menuIndicator>({{"keyPath", "Battery.StateOfCharge"}});
    auto* named = add<QProgressBar>({{"keyPath", "Battery.CycleCount"}, {"keyPathProperty", "maximum"}});
    const KeyPathBinder binder(root, controller);
    EXPECT_EQ(label->text(), QStringLiteral("Discharging..."));
    EXPECT_EQ(row->caption(), QStringLiteral("Demo Computer"));
    EXPECT_EQ(row->text(), QStringLiteral("12.4 W"));
    EXPECT_DOUBLE_EQ(bar->percent(), battery.stateOfCharge);
    EXPECT_EQ(named->maximum(), 293);

    battery.batteryState = QStringLiteral("Charged");
    battery.wattThroughput = 0.0 / 0.0;
    battery.stateOfCharge = 12.5;
    Q_EMIT battery.changed();
    EXPECT_EQ(label->text(), QStringLiteral("Charged"));
    EXPECT_EQ(row->text(), QStringLiteral(u"\u2013"));
    EXPECT_DOUBLE_EQ(bar->percent(), 12.5);
}

TEST_F(KeyPathBinderTest, VisibleAndEnabled)
{
    auto* row = add<FactRow>({{"visibleKeyPath", "Battery.Manufacturer, Battery.DeviceName"}});
    auto* button = add<QPushButton>({{"enabledKeyPath", "Battery"}});
    const KeyPathBinder binder(root, controller);
    battery.setProperty("Manufacturer", QVariant());
    EXPECT_FALSE(row->isHidden());
    battery.setProperty("DeviceName", QString());
    EXPECT_TRUE(row->isHidden());
    battery.setProperty("DeviceName", QStringLiteral("x"));
    EXPECT_FALSE(row->isHidden());
    EXPECT_TRUE(button->isEnabled());
    mac.setProperty("Battery", QVariant::fromValue<QObject*>(nullptr));
    EXPECT_FALSE(button->isEnabled());
    EXPECT_TRUE(row->isHidden());
}

TEST_F(KeyPathBinderTest, ClicksCallTheModel)
{
    auto* inBattery = add<QPushButton>({{"clickKeyPath", "Battery.toggleTemperatureMode"}});
    auto* inComputer = add<QPushButton>({{"clickKeyPath", "toggleAge"}});
    const KeyPathBinder binder(root, controller);
    EXPECT_EQ(binder.unresolved(), QStringList());
    inBattery->click();
    inComputer->click();
    EXPECT_EQ(battery.temperature, QStringLiteral(u"86.0 \u00B0F"));
    EXPECT_EQ(mac.customAge, QVariant(QStringLiteral("2.8 years")));
    mac.setProperty("Battery", QVariant::fromValue<QObject*>(nullptr));
    inBattery->click();
}

TEST_F(KeyPathBinderTest, NamesWhatIsNotThere)
{
    add<PlainLabel>({{"keyPath", "Battery.Batterystate"}});
    add<PlainLabel>({{"displayPattern", "{Names} {Battery.CycleCount:wats}"}});
    add<PlainLabel>({{"visibleKeyPath", "Battery.AdapterWatt, Shape"}});
    add<QPushButton>({{"clickKeyPath", "Battery.toggle"}});
    const KeyPathBinder binder(root, controller);
    const QStringList expected{QStringLiteral("wats"), QStringLiteral("Battery.Batterystate"),
                               QStringLiteral("Names"), QStringLiteral("Shape"),
                               QStringLiteral("Battery.toggle")};
    EXPECT_EQ(binder.unresolved(), expected);
}

TEST_F(KeyPathBinderTest, ToolTipsAreLiteral)
{
    mac.name = QStringLiteral("<b>A&B</b>");
    auto* label = add<PlainLabel>({{"toolTipPattern", "{Name}"}});
    const KeyPathBinder binder(root, controller);
    EXPECT_EQ(label->toolTip(), QStringLiteral("<p>&lt;b&gt;A&amp;B&lt;/b&gt;</p>"));
}

TEST_F(KeyPathBinderTest, FollowsTheController)
{
    ObjectController later;
    auto* label = add<PlainLabel>({{"keyPath", "Name"}});
    {
        const KeyPathBinder binder(root, later);
        EXPECT_EQ(label->text(), QString());
        later.addObject(&mac);
        EXPECT_EQ(label->text(), QStringLiteral("Demo Computer"));
    }
    mac.setProperty("Name", QStringLiteral("unseen"));
    EXPECT_EQ(label->text(), QStringLiteral("Demo Computer"));
    later.addObject(nullptr);
}

} // namespace
