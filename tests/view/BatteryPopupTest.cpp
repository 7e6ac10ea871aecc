#include "view/BatteryPopup.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPointer>

#include "menubar/MainInterface.h"
#include "platform/Workspace.h"
#include "tests/facts/FactComputer.h"
#include "tests/support/QtPrinters.h"
#include "view/BatteryView.h"
#include "view/BatteryWindow.h"
#include "view/FactRow.h"
#include "view/MenuEntry.h"
#include "view/menuIndicator.h"
#include "widgets/PlainLabel.h"
#include "widgets/PlainText.h"
#include "widgets/SwitchField.h"

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

struct BatteryPopupTest : testing::Test, test::FactComputer
{
    BatteryPopupTest()
    {
        interface.setPowerSources(&platform.powerSources);
        interface.setActions(&actions);
        make();
    }

    /// Makes the computer anew from what has been changed of it.
    void make()
    {
        test::FactComputer::make();
        interface.macObjectController().addObject(mac.get());
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

    FactRow* row(FactId id)
    {
        for (FactRow* row : window()->findChildren<FactRow*>()) {
            if (row->fact().id == id && !row->fact().caption.isEmpty())
                return row;
        }
        return nullptr;
    }

    QString textOf(FactRow* row) { return row->caption() + u'|' + row->text(); }

    RecordingActions actions;
    MainInterface interface;
    InventedDesktop desktop;
    BatteryPopup popup{interface, desktop, platform.runLoop};
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
    EXPECT_FALSE(platform.runLoop.isPunctual());
    open();
    EXPECT_TRUE(platform.runLoop.isPunctual());
    popup.close();
    popup.open(); // the first window is still there until the loop has turned
    deleteClosed();
    EXPECT_TRUE(platform.runLoop.isPunctual());
    press(window(), Qt::Key_Escape);
    deleteClosed();
    EXPECT_FALSE(platform.runLoop.isPunctual());
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
TEST_F(BatteryPopupTest, EveryFactOfAGroupIsARow)
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

TEST_F(BatteryPopupTest, LiveWhileOpen)
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

TEST_F(BatteryPopupTest, RowsWithNothingToTellAreHidden)
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

TEST_F(BatteryPopupTest, WithoutADesignCapacityItSaysSo)
{
    platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    setBattery("DesignCapacity", {});
    make();
    open();
    EXPECT_EQ(textOf(find<FactRow>("healthRow")), QStringLiteral(u"Health|No design capacity \u00B7 Good"));
    EXPECT_EQ(textOf(find<FactRow>("cyclesRow")), QStringLiteral("1,293 cycles|"));
    EXPECT_TRUE(find<menuIndicator>("stateOfHealthProgress")->isHidden());
}

TEST_F(BatteryPopupTest, WithoutAFullChargeThereIsADashAndAnEmptyBar)
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

TEST_F(BatteryPopupTest, ChargeLimitAndDevicesComeAndGo)
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

TEST_F(BatteryPopupTest, FollowsABatteryThatGoesAndComesBack)
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

TEST_F(BatteryPopupTest, ToolTipsExplain)
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

TEST_F(BatteryPopupTest, GrowsAndShrinksWithItsRows)
{
    const int before = open()->height();
    battery().setProperty("SerialNumber", QString());
    EXPECT_LT(window()->height(), before);
}

TEST_F(BatteryPopupTest, IsAsHighAsItsRowsAtOnce)
{
    platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    make();
    const int withHealth = open()->height();
    QApplication::processEvents();
    EXPECT_EQ(window()->height(), withHealth);
    setBattery("DesignCapacity", {}); // takes the bar away, which stands in a layout of its own
    battery().updateData();
    QApplication::processEvents();
    const int withoutHealth = window()->height();
    EXPECT_LT(withoutHealth, withHealth);
    popup.close();
    deleteClosed();
    EXPECT_EQ(open()->height(), withoutHealth);
}

TEST_F(BatteryPopupTest, NoBattery)
{
    removeBattery();
    make();
    open();
    EXPECT_EQ(window()->findChild<BatteryView*>(), nullptr);
    EXPECT_TRUE(find<QWidget>("noBatteryView"));
    EXPECT_EQ(find<PlainLabel>("noBatteryLabel")->text(), QStringLiteral("No battery"));
    EXPECT_EQ(textOf(row(FactId::Computer)), QStringLiteral("Demo Computer|MacBook Air"));
}

TEST_F(BatteryPopupTest, ClicksSwitchUnits)
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
        press(field, Qt::Key_Return);
        EXPECT_EQ(row(id)->findChild<SwitchField*>(), field) << "it keeps the keyboard";
        EXPECT_EQ(row(id)->text(), QString::fromUtf16(text));
        EXPECT_EQ(field->label(), QString::fromUtf16(text));
        EXPECT_EQ(field->accessibleName(), row(id)->caption() + u' ' + QString::fromUtf16(text));
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

TEST_F(BatteryPopupTest, TheKeyboardGoesFromTheFactsDownToTheEntries)
{
    QWidget* shown = open();
    QStringList order;
    for (QWidget* next = shown->nextInFocusChain(); next != shown; next = next->nextInFocusChain()) {
        if (qobject_cast<SwitchField*>(next))
            order.append(QStringLiteral("field"));
        else if (qobject_cast<MenuEntry*>(next))
            order.append(QStringLiteral("entry"));
    }
    ASSERT_TRUE(order.contains(QStringLiteral("field")));
    ASSERT_TRUE(order.contains(QStringLiteral("entry")));
    EXPECT_LT(order.lastIndexOf(QStringLiteral("field")), order.indexOf(QStringLiteral("entry")));
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
    const QString name(300, u'n');
    mac->setProperty("Name", name);
    mac->setProperty("LongModel", QString(10000, u'w'));
    battery().setProperty("BatteryState", QStringLiteral(u"\u05D0\U0001F50B\n").repeated(3000));
    open();
    EXPECT_EQ(window()->width(), width);
    EXPECT_FALSE(window()->grab().isNull());
    EXPECT_EQ(row(FactId::Computer)->caption(), name);
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
        const bool captionIsLeft = row(FactId::BatteryAge)->findChild<PlainLabel*>()->x() == 0;
        EXPECT_EQ(captionIsLeft, direction == Qt::LeftToRight);
        popup.close();
        deleteClosed();
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
