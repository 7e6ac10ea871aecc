#include "menubar/BatteryPopup.h"

#include <limits>
#include <set>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPointer>

#include "menubar/BatteryView.h"
#include "menubar/BatteryWindow.h"
#include "menubar/FactRow.h"
#include "menubar/KeyPathBinder.h"
#include "menubar/MainInterface.h"
#include "menubar/MenuEntry.h"
#include "menubar/PlainLabel.h"
#include "menubar/SwitchField.h"
#include "menubar/menuIndicator.h"
#include "platform/Application.h"
#include "tests/menubar/FakeModels.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

class RecordingActions : public StatusMenuActions
{
public:
    void openApplication() override { calls.append(QStringLiteral("application")); }
    void openPreferences() override { calls.append(QStringLiteral("preferences")); }
    void openMenuBarText() override { calls.append(QStringLiteral("menu bar text")); }
    void quitApp() override { calls.append(QStringLiteral("quit")); }

    QStringList calls;
};

class InventedDesktop : public Application
{
public:
    void terminate() override {}
    void activateIgnoringOtherApplications() override {}
    bool showsTranslucentWindows() const override { return translucent; }

    bool translucent = false;
};

void press(QWidget* widget, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &up);
}

void pressMouse(QWidget* widget, const QPointF& at)
{
    QMouseEvent event(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

struct BatteryPopupTest : testing::Test
{
    BatteryPopupTest()
    {
        mac.battery = &battery;
        interface.macObjectController().addObject(&mac);
        interface.setActions(&actions);
    }

    ~BatteryPopupTest() override
    {
        popup.close();
        deleteClosed();
    }

    static void deleteClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    static QWidget* window()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == QStringLiteral("batteryWindow"))
                return widget;
        }
        return nullptr;
    }

    QWidget* open()
    {
        popup.open();
        return window();
    }

    template <class Widget>
    Widget* find(const char* name)
    {
        return window()->findChild<Widget*>(QString::fromLatin1(name));
    }

    FactRow* row(const char* name) { return find<FactRow>(name); }

    test::FakeBattery battery;
    test::FakeMac mac;
    RecordingActions actions;
    MainInterface interface;
    InventedDesktop desktop;
    FakePlatform computer;
    BatteryPopup popup{interface, desktop, computer.runLoop};
};

TEST_F(BatteryPopupTest, NothingExistsWhileClosed)
{
    EXPECT_EQ(window(), nullptr);
    EXPECT_FALSE(popup.isOpen());
    interface.statusMenu().toggleView();
    EXPECT_TRUE(popup.isOpen());
    interface.statusMenu().toggleView();
    EXPECT_FALSE(popup.isOpen());
    deleteClosed();
    EXPECT_EQ(window(), nullptr);
    interface.statusMenu().toggleView();
    EXPECT_TRUE(popup.isOpen());
}

TEST_F(BatteryPopupTest, OpeningTwiceKeepsOneWindow)
{
    const QWidget* first = open();
    EXPECT_EQ(open(), first);
}

TEST_F(BatteryPopupTest, TimersArePunctualWhileItIsOpen)
{
    EXPECT_FALSE(computer.runLoop.isPunctual());
    open();
    EXPECT_TRUE(computer.runLoop.isPunctual());
    popup.close();
    popup.open(); // the first window is still there until the loop has turned
    deleteClosed();
    EXPECT_TRUE(computer.runLoop.isPunctual());
    press(window(), Qt::Key_Escape);
    deleteClosed();
    EXPECT_FALSE(computer.runLoop.isPunctual());
}

TEST_F(BatteryPopupTest, TheMenuOpensAndNeverCloses)
{
    for (int times = 0; times < 3; ++times) {
        interface.statusMenu().openView();
        EXPECT_TRUE(popup.isOpen());
    }
    pressMouse(window(), {-50, -50});
    EXPECT_FALSE(popup.isOpen());
    interface.statusMenu().openView();
    EXPECT_TRUE(popup.isOpen()) << "it is no click on the item";
}

TEST_F(BatteryPopupTest, ShowsWhatTheModelsKnow)
{
    open();
    const std::pair<const char*, const char16_t*> rows[]{
        {"chargeRow", u"Charge|4,000 of 6,000 mAh"},
        {"powerRow", u"Discharging with|12.4 W"},
        {"timeRow", u"Time until empty|3:42"},
        {"healthRow", u"Health|83.9 % · Good"},
        {"cyclesRow", u"293 cycles|6,000 of 7,150 mAh"},
        {"madeByRow", u"Made by|Simplo · bq20z451"},
        {"ageRow", u"Age|2.5 years"},
        {"temperatureRow", u"Temperature|30.0 °C"},
        {"adapterRow", u"Adapter|Not connected"},
        {"serialRow", u"Serial number|D867D0E10AB1234"},
        {"nameRow", u"Demo Computer|MacBook Air"},
        {"modelRow", u"Model|(13-inch, Late 2013)"},
        {"systemRow", u"System|Debian 12"},
        {"computerAgeRow", u"Age|34 months"},
        {"computerSerialRow", u"Serial number|C02MN1TXF5YW"},
    };
    for (const auto& [name, text] : rows) {
        ASSERT_TRUE(row(name)) << name;
        EXPECT_TRUE(row(name)->isVisible()) << name;
        EXPECT_EQ(row(name)->caption() + u'|' + row(name)->text(), QString::fromUtf16(text)) << name;
    }
    EXPECT_EQ(find<PlainLabel>("figureLabel")->text(), QStringLiteral("66.7"));
    EXPECT_EQ(find<PlainLabel>("stateLabel")->text(), QStringLiteral("Discharging..."));
    EXPECT_DOUBLE_EQ(find<menuIndicator>("stateOfHealthProgress")->percent(), battery.stateOfHealth);
}

TEST_F(BatteryPopupTest, EveryPathOfEveryViewIsThere)
{
    open();
    EXPECT_EQ(window()->findChild<KeyPathBinder*>()->unresolved(), QStringList());
    EXPECT_GT(window()->findChild<KeyPathBinder*>()->paths().size(), 25);
    popup.close();
    deleteClosed();
    mac.battery = nullptr;
    open();
    EXPECT_EQ(window()->findChild<KeyPathBinder*>()->unresolved(), QStringList());
}

TEST_F(BatteryPopupTest, LiveWhileOpen)
{
    open();
    battery.batteryState = QStringLiteral("Charging...");
    battery.adapterConnected = QStringLiteral("Connected");
    battery.adapterWatt = QStringLiteral("60 Watts");
    battery.stateOfCharge = 70;
    Q_EMIT battery.changed();
    EXPECT_EQ(find<PlainLabel>("stateLabel")->text(), QStringLiteral("Charging..."));
    EXPECT_EQ(row("adapterRow")->text(), QStringLiteral(u"Connected \u00B7 60 Watts"));
    EXPECT_DOUBLE_EQ(find<menuIndicator>("stateOfChargeProgress")->percent(), 70);
}

TEST_F(BatteryPopupTest, RowsWithNothingToTellAreHidden)
{
    battery.manufacturer = {};
    battery.deviceName = {};
    battery.serialNumber = QString();
    battery.stateOfHealth = std::numeric_limits<double>::quiet_NaN();
    battery.batteryHealth.clear();
    battery.batteryState.clear();
    battery.knowsTemperature = false;
    battery.knowsManufactureDate = false;
    mac.osxVersion = {};
    mac.knowsManufactureDate = false;
    open();
    for (const char* name : {"madeByRow", "serialRow", "healthRow", "timeRow", "systemRow", "temperatureRow",
                             "ageRow", "computerAgeRow"})
        EXPECT_TRUE(row(name)->isHidden()) << name;
    EXPECT_TRUE(find<menuIndicator>("stateOfHealthProgress")->isHidden());
}

TEST_F(BatteryPopupTest, GrowsAndShrinksWithItsRows)
{
    const int before = open()->height();
    battery.setProperty("SerialNumber", QString());
    QApplication::processEvents();
    EXPECT_LT(window()->height(), before);
}

TEST_F(BatteryPopupTest, NoBattery)
{
    mac.battery = nullptr;
    open();
    EXPECT_EQ(window()->findChild<BatteryView*>(), nullptr);
    EXPECT_TRUE(find<QWidget>("noBatteryView"));
    EXPECT_EQ(find<PlainLabel>("noBatteryLabel")->text(), QStringLiteral("No battery"));
    EXPECT_EQ(row("nameRow")->text(), QStringLiteral("MacBook Air"));
}

TEST_F(BatteryPopupTest, ClicksSwitchUnits)
{
    open();
    const std::pair<const char*, const char16_t*> switches[]{
        {"ageRow", u"912 days"}, {"temperatureRow", u"86.0 \u00B0F"}, {"computerAgeRow", u"2.8 years"}};
    for (const auto& [name, text] : switches) {
        auto* field = row(name)->findChild<SwitchField*>();
        ASSERT_TRUE(field) << name;
        EXPECT_EQ(field->toolTip(), QStringLiteral("Click to switch the unit"));
        EXPECT_EQ(field->focusPolicy(), Qt::StrongFocus);
        press(field, Qt::Key_Return);
        EXPECT_EQ(row(name)->text(), QString::fromUtf16(text));
        EXPECT_EQ(field->accessibleName(), row(name)->caption() + u' ' + QString::fromUtf16(text));
        EXPECT_EQ(QAccessible::queryAccessibleInterface(field)->role(), QAccessible::PushButton);
    }
}

TEST_F(BatteryPopupTest, EntriesUnderTheView)
{
    interface.statusMenu().setText(interface.outlets().versionItem, QStringLiteral("Version 1&2"));
    QStringList labels;
    for (const MenuEntry* entry : open()->findChildren<MenuEntry*>())
        labels.append(entry->label() + (entry->isEnabled() ? QString() : QStringLiteral(" (off)")));
    EXPECT_EQ(labels.join(u'|'),
              QStringLiteral("Open Application|Preferences...|Menu Bar Text...|Version 1&2 (off)|Quit"));
    interface.statusMenu().setText(interface.outlets().versionItem, QStringLiteral("Version 3"));
    EXPECT_EQ(window()->findChildren<MenuEntry*>().at(3)->label(), QStringLiteral("Version 3"));
}

TEST_F(BatteryPopupTest, ChoosingClosesAndActs)
{
    open()->findChildren<MenuEntry*>().at(1)->click();
    EXPECT_EQ(actions.calls.join(u' '), QStringLiteral("preferences"));
    EXPECT_FALSE(popup.isOpen());
}

TEST_F(BatteryPopupTest, EscapeCloses)
{
    press(open(), Qt::Key_Escape);
    EXPECT_FALSE(popup.isOpen());
}

TEST_F(BatteryPopupTest, ArrowsReachEverything)
{
    QWidget* opened = open();
    std::set<QWidget*> reached;
    for (int i = 0; i < 12; ++i) {
        QWidget* at = opened->focusWidget() ? opened->focusWidget() : opened;
        press(at, Qt::Key_Down);
        reached.insert(opened->focusWidget());
    }
    for (const SwitchField* field : opened->findChildren<SwitchField*>())
        EXPECT_TRUE(reached.count(const_cast<SwitchField*>(field)));
    for (MenuEntry* entry : opened->findChildren<MenuEntry*>())
        EXPECT_EQ(reached.count(entry) == 1, entry->isEnabled()) << entry->label().toStdString();
}

TEST_F(BatteryPopupTest, TheClickThatClosedItDoesNotOpenItAgain)
{
    pressMouse(open(), {-50, -50});
    EXPECT_FALSE(popup.isOpen());
    interface.statusMenu().toggleView();
    EXPECT_FALSE(popup.isOpen());
    popup.open();
    EXPECT_TRUE(popup.isOpen());
}

TEST_F(BatteryPopupTest, LongTextsDoNotWidenIt)
{
    const int width = open()->width();
    popup.close();
    deleteClosed();
    mac.name = QString(300, u'n');
    mac.longModel = QString(10000, u'w');
    battery.batteryState = QStringLiteral(u"\u05D0\U0001F50B\n").repeated(3000);
    open();
    EXPECT_EQ(window()->width(), width);
    EXPECT_FALSE(window()->grab().isNull());
    EXPECT_EQ(row("nameRow")->caption(), mac.name.toString());
}

TEST_F(BatteryPopupTest, CornersAreRoundOnlyWhereTheyCanBeSmooth)
{
    const auto corner = [this] {
        const QImage shown = open()->grab().toImage();
        popup.close();
        deleteClosed();
        return shown.pixelColor(0, 0);
    };
    EXPECT_EQ(corner().alpha(), 255);
    desktop.translucent = true;
    EXPECT_EQ(corner().alpha(), 0);
    desktop.translucent = false;
    EXPECT_EQ(corner().alpha(), 255);
}

TEST_F(BatteryPopupTest, PlainWindowHasAFixedSize)
{
    auto* plain = new BatteryWindow(interface, BatteryWindow::Kind::Plain);
    const QPointer<QWidget> guard(plain);
    plain->open({});
    EXPECT_EQ(plain->windowTitle(), QStringLiteral("Battery"));
    EXPECT_EQ(plain->minimumSize(), plain->maximumSize());
    EXPECT_EQ(plain->size(), plain->maximumSize());
    EXPECT_EQ(plain->windowType(), Qt::Window);
    press(plain, Qt::Key_Escape);
    deleteClosed();
    EXPECT_TRUE(guard.isNull());
}

// Nothing but background may touch the margins of the view, whichever way the language runs.
TEST_F(BatteryPopupTest, NothingIsClippedInEitherDirection)
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
        const bool captionIsLeft = row("ageRow")->findChild<PlainLabel*>()->x() == 0;
        EXPECT_EQ(captionIsLeft, direction == Qt::LeftToRight);
        popup.close();
        deleteClosed();
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
