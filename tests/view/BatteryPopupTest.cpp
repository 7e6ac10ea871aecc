#include "view/BatteryPopup.h"

#include <set>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/support/QtPrinters.h"
#include "tests/view/PopupFixture.h"
#include "view/BatteryWindow.h"
#include "view/MenuEntry.h"
#include "view/ViewMetrics.h"
#include "widgets/controls/SwitchField.h"

using namespace quindle;

namespace {

class BatteryPopupTest : public test::PopupFixture
{
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
    test::press(window(), Qt::Key_Escape);
    deleteClosed();
    EXPECT_FALSE(platform.runLoop.isPunctual());
}

TEST_F(BatteryPopupTest, TheMenuOpensAndNeverCloses)
{
    for (int times = 0; times < 3; ++times) {
        interface.statusMenu().openView();
        EXPECT_TRUE(popup.isOpen());
    }
    test::pressMouse(window(), {-50, -50});
    EXPECT_FALSE(popup.isOpen());
    interface.statusMenu().openView();
    EXPECT_TRUE(popup.isOpen()) << "it is no click on the item";
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
    setBattery("DesignCapacity", {}); // takes the bar away, which is in a layout of its own
    battery().updateData();
    QApplication::processEvents();
    const int withoutHealth = window()->height();
    EXPECT_LT(withoutHealth, withHealth);
    popup.close();
    deleteClosed();
    EXPECT_EQ(open()->height(), withoutHealth);
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

TEST_F(BatteryPopupTest, AClickOnCapacitiesSwitchesTheirUnit)
{
    platform.powerSources.energyVoltage = 11.4;
    MemoryUserDefaults& own = platform.userDefaults.standardDefaults;
    interface.setOwnDefaults(&own);
    open();
    auto* charge = find<FactRow>("chargeRow");
    ASSERT_EQ(charge->text(), QStringLiteral("4,000 of 6,000 mAh"));
    charge->findChild<SwitchField*>()->click();
    EXPECT_EQ(charge->text(), QStringLiteral("45.6 of 68.4 Wh"));
    EXPECT_EQ(own.values.value(QStringLiteral("QDBatteryCapacityMode")), QVariant(qint64{1}));
    auto* health = find<FactRow>("cyclesRow");
    EXPECT_EQ(health->text(), QStringLiteral("68.4 of 81.5 Wh"));
    health->findChild<SwitchField*>()->click();
    EXPECT_EQ(charge->text(), QStringLiteral("4,000 of 6,000 mAh"));
    EXPECT_EQ(own.values.value(QStringLiteral("QDBatteryCapacityMode")), QVariant(qint64{0}));
    platform.powerSources.energyVoltage.reset();
    interface.updateFacts(QString());
    EXPECT_EQ(charge->findChild<SwitchField*>(), nullptr) << "the driver counts charges now";
}

struct BatteryPopupCopying : BatteryPopupTest
{
    static void chooseInContextMenu(QWidget* at, const char* text)
    {
        const QPoint place = at->mapTo(at->window(), at->rect().center());
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, at->window()->mapToGlobal(place));
        QApplication::sendEvent(at->window(), &asked);
        QMenu* menu = at->window()->findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text() == QLatin1String(text))
                action->trigger();
        delete menu;
    }

    static void pressCopy(QWidget* at)
    {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
        QApplication::sendEvent(at, &down);
    }

    static QString copied() { return QGuiApplication::clipboard()->text(); }
};

TEST_F(BatteryPopupCopying, TheRowUnderThePointerAndAllOfThem)
{
    open();
    chooseInContextMenu(row(FactId::BatterySerial), "Copy");
    EXPECT_EQ(copied(), QStringLiteral("D867D0E10AB1234"));
    chooseInContextMenu(row(FactId::BatterySerial), "Copy All");
    EXPECT_TRUE(copied().startsWith(QStringLiteral("State: Discharging...\nDischarging with: 12.4 W\n")));
    EXPECT_TRUE(copied().contains(QStringLiteral(u"\nMade by: Simplo \u00B7 bq20z451\n")));
    EXPECT_TRUE(popup.isOpen());
    chooseInContextMenu(find<QWidget>("figureLabel"), "Copy");
    EXPECT_TRUE(copied().contains(u'\n')) << "no row is there, so there is nothing to choose";
}

TEST_F(BatteryPopupCopying, ByKeyboardTheRowThatHasItElseAll)
{
    pressCopy(open());
    EXPECT_TRUE(copied().startsWith(QStringLiteral("State: Discharging...\n")));
    auto* field = row(FactId::Temperature)->findChild<SwitchField*>();
    field->setFocus();
    pressCopy(field);
    EXPECT_EQ(copied(), QStringLiteral(u"30.0 \u00B0C"));
}

TEST_F(BatteryPopupTest, EscapeCloses)
{
    test::press(open(), Qt::Key_Escape);
    EXPECT_FALSE(popup.isOpen());
}

TEST_F(BatteryPopupTest, ControlWCloses)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier);
    QApplication::sendEvent(open(), &key);
    EXPECT_FALSE(popup.isOpen());
}

TEST_F(BatteryPopupTest, TheScrollBarBeginsBelowTheRoundCorner)
{
    desktop.translucent = true;
    open();
    auto* area = window()->findChild<QScrollArea*>();
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QApplication::processEvents();
    const QScrollBar* bar = area->verticalScrollBar();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_GE(bar->mapTo(window(), QPoint()).y(), ViewMetrics(*window()).radius);
}

TEST_F(BatteryPopupTest, ArrowsReachEverything)
{
    QWidget* opened = open();
    std::set<QWidget*> reached;
    for (int i = 0; i < 12; ++i) {
        QWidget* at = opened->focusWidget() ? opened->focusWidget() : opened;
        test::press(at, Qt::Key_Down);
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
    test::pressMouse(open(), {-50, -50});
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
    test::press(plain, Qt::Key_Escape);
    deleteClosed();
    EXPECT_TRUE(guard.isNull());
}

} // namespace
