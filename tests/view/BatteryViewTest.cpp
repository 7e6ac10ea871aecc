#include "view/BatteryView.h"

#include <algorithm>

#include <QAccessible>
#include <QImage>
#include <QLayout>
#include <QPointer>

#include "tests/support/QtPrinters.h"
#include "tests/view/PopupFixture.h"
#include "view/menuIndicator.h"
#include "widgets/PlainLabel.h"
#include "widgets/PlainText.h"
#include "widgets/controls/SwitchField.h"

using namespace quindle;

namespace {

class BatteryViewTest : public test::PopupFixture
{
};

TEST_F(BatteryViewTest, ShowsWhatTheModelsKnow)
{
    open();
    const std::pair<const char*, const char16_t*> named[]{
        {"chargeRow", u"Charge|4,000 of 6,000 mAh"},
        {"healthRow", u"Health|83.9 % · Good"},
        {"cyclesRow", u"1,293 cycles|6,000 of 7,150 mAh"},
    };
    for (const auto& [name, text] : named) {
        EXPECT_TRUE(find<FactRow>(name)->isVisible()) << name;
        EXPECT_EQ(textOf(find<FactRow>(name)), QString::fromUtf16(text));
    }
    EXPECT_EQ(find<PlainLabel>("figureLabel")->text(), QStringLiteral("66.7"));
    EXPECT_EQ(find<PlainLabel>("stateLabel")->text(), QStringLiteral("Discharging..."));
    EXPECT_DOUBLE_EQ(find<menuIndicator>("stateOfChargeProgress")->percent(), battery().StateOfCharge());
    EXPECT_DOUBLE_EQ(find<menuIndicator>("stateOfHealthProgress")->percent(), battery().StateOfHealth());
}

// A new fact needs no more than its line in the table.
TEST_F(BatteryViewTest, EveryFactOfAGroupIsARow)
{
    addDevices();
    open();
    int rows = 0;
    for (const Fact& fact : factsFor(FactPlace::View, sources())) {
        if (fact.group == FactGroup::Summary || !fact.shown)
            continue;
        const QList<FactRow*> all = window()->findChildren<FactRow*>();
        const auto found =
            std::find_if(all.begin(), all.end(), [&fact](FactRow* r) { return r->fact() == fact; });
        ASSERT_NE(found, all.end()) << fact.caption.toStdString();
        EXPECT_TRUE((*found)->isVisible()) << fact.caption.toStdString();
        EXPECT_EQ(textOf(*found), fact.caption + u'|' + factText(fact, FactPlace::View));
        ++rows;
    }
    EXPECT_GE(rows, 16);
}

TEST_F(BatteryViewTest, LiveWhileOpen)
{
    open();
    plugIn();
    setBattery("CurrentCapacity", 4200);
    battery().updateData();
    EXPECT_EQ(find<PlainLabel>("stateLabel")->text(), QStringLiteral("Charging..."));
    EXPECT_EQ(row(FactId::Adapter)->text(), QStringLiteral(u"Connected \u00B7 60 Watts"));
    EXPECT_EQ(textOf(row(FactId::Time)), QStringLiteral("Calculating...|"));
    EXPECT_DOUBLE_EQ(find<menuIndicator>("stateOfChargeProgress")->percent(), 70);
}

TEST_F(BatteryViewTest, RowsWithNothingToShowAreHidden)
{
    for (const char* key : {"Manufacturer", "DeviceName", "BatterySerialNumber", "Temperature",
                            "ManufactureDate", "CycleCount"})
        setBattery(key, {});
    holdBack(); // no state
    platform.systemFiles.files.clear();
    platform.setComputer(QStringLiteral("MacBookAir6,2"), QString());
    make();
    open();
    for (const FactId id :
         {FactId::MadeBy, FactId::BatterySerial, FactId::Time, FactId::System, FactId::Temperature,
          FactId::BatteryAge, FactId::ComputerAge, FactId::ChargeLimit})
        EXPECT_TRUE(!row(id) || row(id)->isHidden()) << static_cast<int>(id);
    EXPECT_EQ(textOf(find<FactRow>("cyclesRow")), QStringLiteral("|6,000 of 7,150 mAh"));
    EXPECT_TRUE(find<QWidget>("devicesList")->isHidden());
}

TEST_F(BatteryViewTest, WithoutADesignCapacityItSaysSo)
{
    platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    setBattery("DesignCapacity", {});
    make();
    open();
    EXPECT_EQ(textOf(find<FactRow>("healthRow")), QStringLiteral(u"Health|No design capacity \u00B7 Good"));
    EXPECT_EQ(textOf(find<FactRow>("cyclesRow")), QStringLiteral("1,293 cycles|"));
    EXPECT_TRUE(find<menuIndicator>("stateOfHealthProgress")->isHidden());
}

TEST_F(BatteryViewTest, WithoutAFullChargeThereIsADashAndAnEmptyBar)
{
    setBattery("MaxCapacity", 0);
    setBattery("CurrentCapacity", 0);
    make();
    open();
    EXPECT_EQ(find<PlainLabel>("figureLabel")->text(), QStringLiteral(u"\u2013"));
    EXPECT_EQ(find<menuIndicator>("stateOfChargeProgress")->percent(), 0);
    EXPECT_EQ(textOf(find<FactRow>("chargeRow")), QStringLiteral(u"Charge|\u2013"));
    EXPECT_TRUE(find<menuIndicator>("stateOfHealthProgress")->isHidden());
}

TEST_F(BatteryViewTest, ChargeLimitAndDevicesComeAndGo)
{
    open();
    addDevices();
    interface.updateFacts(QString());
    EXPECT_EQ(textOf(row(FactId::ChargeLimit)), QStringLiteral("Charge limit|80 %"));
    EXPECT_TRUE(row(FactId::ChargeLimit)->isVisible());
    EXPECT_TRUE(find<QWidget>("devicesList")->isVisible());
    EXPECT_EQ(textOf(row(FactId::Peripheral)), QStringLiteral("Marathon Mouse M705|85 %"));
    platform.powerSources.limit.reset();
    platform.powerSources.devices.clear();
    interface.updateFacts(QString());
    EXPECT_TRUE(row(FactId::ChargeLimit)->isHidden());
    EXPECT_TRUE(find<QWidget>("devicesList")->isHidden());
}

TEST_F(BatteryViewTest, FollowsABatteryThatGoesAndComesBack)
{
    open();
    const QPointer<QWidget> first = find<QWidget>("menuView");
    const std::unique_ptr<QDMac> withBattery = std::move(mac);
    removeBattery();
    make();
    interface.updateFacts(QString());
    deleteClosed();
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(find<PlainLabel>("noBatteryLabel")->text(), QStringLiteral("No battery"));
    interface.macObjectController().addObject(withBattery.get());
    interface.updateFacts(QString());
    EXPECT_TRUE(find<QWidget>("menuView")->isVisible());
    EXPECT_EQ(find<PlainLabel>("figureLabel")->text(), QStringLiteral("66.7"));
}

TEST_F(BatteryViewTest, ToolTipsExplain)
{
    open();
    EXPECT_EQ(row(FactId::BatteryAge)->toolTip(), QStringLiteral("<p>Manufactured 2014-03-02</p>"));
    EXPECT_EQ(row(FactId::Model)->toolTip(), QStringLiteral("<p>MacBookAir6,2</p>"));
    const QString ofCycles = find<FactRow>("cyclesRow")->toolTip();
    EXPECT_TRUE(ofCycles.contains(QDBattery::CycleCount_Desc())) << ofCycles.toStdString();
    EXPECT_TRUE(ofCycles.contains(QStringLiteral("7,300 mAh: "))) << ofCycles.toStdString();
    mac->setProperty("LongModel", QStringLiteral("x"));
    mac->setProperty("Model", QStringLiteral("<b>A&B</b>"));
    EXPECT_EQ(row(FactId::Model)->toolTip(), QStringLiteral("<p>&lt;b&gt;A&amp;B&lt;/b&gt;</p>"));
}

TEST_F(BatteryViewTest, NoBattery)
{
    removeBattery();
    make();
    open();
    EXPECT_EQ(window()->findChild<BatteryView*>(), nullptr);
    EXPECT_TRUE(find<QWidget>("noBatteryView"));
    EXPECT_EQ(find<PlainLabel>("noBatteryLabel")->text(), QStringLiteral("No battery"));
    EXPECT_EQ(textOf(row(FactId::Computer)), QStringLiteral("Demo Computer|MacBook Air"));
}

TEST_F(BatteryViewTest, ClicksSwitchUnits)
{
    open();
    struct Switch
    {
        FactId id;
        const char16_t* text;
        const char16_t* explained;
    };
    const Switch switches[]{
        {FactId::BatteryAge, u"10 months", u"Manufactured 2014-03-02\nClick to switch the unit"},
        {FactId::Temperature, u"85.9 \u00B0F", u"Click to switch the unit"},
        {FactId::ComputerAge, u"7 months", u"Built 2014-05-12\nClick to switch the unit"},
    };
    for (const auto& [id, text, explained] : switches) {
        auto* field = row(id)->findChild<SwitchField*>();
        ASSERT_TRUE(field);
        const QString explanation = QString::fromUtf16(explained);
        EXPECT_EQ(field->toolTip(), literalToolTip(explanation));
        EXPECT_EQ(field->accessibleDescription(), explanation);
        EXPECT_EQ(field->focusPolicy(), Qt::StrongFocus);
        test::press(field, Qt::Key_Return);
        EXPECT_EQ(row(id)->findChild<SwitchField*>(), field) << "it keeps the keyboard";
        EXPECT_EQ(row(id)->text(), QString::fromUtf16(text));
        EXPECT_EQ(field->label(), QString::fromUtf16(text));
        EXPECT_EQ(field->accessibleName(), row(id)->caption() + u' ' + QString::fromUtf16(text));
        EXPECT_EQ(QAccessible::queryAccessibleInterface(field)->role(), QAccessible::PushButton);
    }
}

// Nothing but background may touch the margins of the view, whichever way the language runs.
TEST_F(BatteryViewTest, NothingIsClippedInEitherDirection)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        open();
        QApplication::processEvents();
        auto* view = find<QWidget>("menuView");
        for (const QWidget* child : view->findChildren<QWidget*>()) {
            if (!child->isVisible())
                continue;
            const QRect place(child->mapTo(view, QPoint()), child->size());
            EXPECT_TRUE(view->contentsRect().contains(place)) << child->objectName().toStdString();
        }
        const QImage image = view->grab().toImage();
        const QColor background = image.pixelColor(1, 1);
        const int edge = view->layout()->contentsMargins().left() / 2;
        for (int y = 0; y < image.height(); ++y) {
            ASSERT_EQ(image.pixelColor(edge, y), background) << y;
            ASSERT_EQ(image.pixelColor(image.width() - 1 - edge, y), background) << y;
        }
        const bool captionIsLeft = row(FactId::BatteryAge)->findChild<PlainLabel*>()->x() == 0;
        EXPECT_EQ(captionIsLeft, direction == Qt::LeftToRight);
        popup.close();
        deleteClosed();
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
