// Renders the opened battery view with invented models: BatteryViewShot CASE FILE.png
// CASE: words joined by "-" of light, dark, charging, low, held, none, rtl, long; "stay" leaves it open

#include <limits>

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include "menubar/BatteryWindow.h"
#include "menubar/MainInterface.h"
#include "menubar/MenuEntry.h"
#include "tests/menubar/FakeModels.h"
#include "tests/menubar/Palettes.h"

using namespace quindle;

namespace {

void makeCharging(test::FakeBattery& battery)
{
    battery.batteryState = QStringLiteral("Charging...");
    battery.stateText = QStringLiteral("Charging with");
    battery.remainingString = QStringLiteral("Calculating...");
    battery.timeRemaining.clear();
    battery.adapterConnected = QStringLiteral("Connected");
    battery.adapterWatt = QStringLiteral("60 Watts");
    battery.stateOfCharge = 31.2;
    battery.currentCapacity = 1872;
}

void makeLow(test::FakeBattery& battery)
{
    battery.stateOfCharge = 7;
    battery.currentCapacity = 420;
    battery.stateOfHealth = 41;
}

void makeHeld(test::FakeBattery& battery)
{
    battery.batteryState.clear();
    battery.stateText = QStringLiteral("Chargin with");
    battery.timeRemaining.clear();
    battery.wattThroughput = 0;
    battery.manufacturer = {};
    battery.serialNumber = QString();
    battery.designCapacity = 0;
    battery.stateOfHealth = std::numeric_limits<double>::infinity();
    battery.adapterConnected = QStringLiteral("Connected");
}

void makeLong(test::FakeBattery& battery, test::FakeMac& mac)
{
    mac.name = QStringLiteral(u"<b>A&B</b> ") + QString(300, u'n');
    mac.type = QStringLiteral(u"\u05D0\u05D1\u05D2 ").repeated(100);
    mac.longModel = QStringLiteral("line\nbreak ") + QString(10000, u'w');
    battery.manufacturer = QString(QStringLiteral(u"\U0001F50B emoji ")).repeated(50);
    battery.batteryState = QStringLiteral("Discharging for a very very long time in a far away place...");
    battery.cycleCount = 1234567890123;
}

std::shared_ptr<HueFilter> hueFilter(double angle)
{
    auto filter = std::make_shared<HueFilter>();
    filter->setInputAngle(angle);
    return filter;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QString name = QString::fromLocal8Bit(argv[1]);
    const QStringList words = name.split(u'-');
    const bool dark = words.contains(QStringLiteral("dark"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(dark ? test::darkPalette() : test::lightPalette());
    if (words.contains(QStringLiteral("rtl")))
        QApplication::setLayoutDirection(Qt::RightToLeft);

    test::FakeBattery battery;
    test::FakeMac mac;
    if (!words.contains(QStringLiteral("none")))
        mac.battery = &battery;
    double angle = 4;
    if (words.contains(QStringLiteral("charging"))) {
        makeCharging(battery);
        angle = -16;
    }
    if (words.contains(QStringLiteral("low"))) {
        makeLow(battery);
        angle = 241;
    }
    if (words.contains(QStringLiteral("held")))
        makeHeld(battery);
    if (words.contains(QStringLiteral("long")))
        makeLong(battery, mac);

    MainInterface interface;
    interface.macObjectController().addObject(&mac);
    interface.statusMenu().setText(interface.outlets().versionItem, QStringLiteral("Version 123"));
    interface.stateOfChargeProgress().setContentFilters({hueFilter(angle)});
    interface.stateOfHealthProgress().setContentFilters({hueFilter(angle == 241 ? 241 : 4)});

    auto* window = new BatteryWindow(interface, BatteryWindow::Kind::Popup);
    window->open(QPoint(400, 10));
    QApplication::processEvents();
    if (auto* entry = window->findChild<MenuEntry*>())
        entry->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    const bool saved = window->grab().save(QString::fromLocal8Bit(argv[2]));
    if (words.contains(QStringLiteral("stay")))
        QApplication::exec();
    window->close();
    return saved ? 0 : 1;
}
