// Renders the opened battery view of an invented computer: BatteryViewShot CASE FILE.png
// CASE: words joined by "-" of light, dark, charging, full, low, held, nodesign, limit, devices, two, chip,
// energy, wh, demo, none, rtl, long, contrast; "stay" leaves it open

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include "menubar/MainInterface.h"
#include "tests/facts/FactComputer.h"
#include "tests/view/Palettes.h"
#include "view/BatteryWindow.h"
#include "view/MenuEntry.h"
#include "widgets/DesktopLook.h"

using namespace quindle;
using test::FactComputer;

namespace {

void charging(FactComputer& computer)
{
    computer.plugIn();
    computer.setBattery("CurrentCapacity", 1872);
}

void low(FactComputer& computer)
{
    computer.setBattery("CurrentCapacity", 180);
    computer.setBattery("MaxCapacity", 2950);
    computer.setCondition(QStringLiteral("Poor"));
}

/// A computer of another make, of which little is known.
void noDesign(FactComputer& computer)
{
    computer.platform.setComputer(QStringLiteral("20Y70037MH"), QStringLiteral("PF123456"));
    computer.platform.systemFiles.files.clear();
    for (const char* key : {"DesignCapacity", "CycleCount", "Temperature", "ManufactureDate"})
        computer.setBattery(key, {});
    computer.setCondition(QString());
}

void limit(FactComputer& computer)
{
    computer.holdBack();
    computer.platform.powerSources.limit = 80;
}

QVariantMap oneOfTwo(const char* name, qint64 percent, qint64 current)
{
    return {{QStringLiteral("Type"), QStringLiteral("InternalBattery")},
            {QStringLiteral("Name"), QString::fromLatin1(name)},
            {QStringLiteral("Current Capacity"), percent},
            {QStringLiteral("Max Capacity"), 100},
            {QStringLiteral("Current"), current},
            {QStringLiteral("BatteryHealth"), QStringLiteral("Good")}};
}

void two(FactComputer& computer)
{
    computer.platform.powerSources.sources = {oneOfTwo("45N1113", 34, -1000), oneOfTwo("45N1127", 81, 0)};
}

void none(FactComputer& computer)
{
    computer.removeBattery();
}

void makeLong(QDMac& mac)
{
    mac.setProperty("Name", QString(QStringLiteral("<b>A&B</b> ") + QString(300, u'n')));
    mac.setProperty("Type", QStringLiteral(u"\u05D0\u05D1\u05D2 ").repeated(100));
    mac.setProperty("LongModel", QString(QStringLiteral("line\nbreak ") + QString(10000, u'w')));
    QDBattery& battery = *mac.Battery();
    battery.setProperty("Manufacturer", QStringLiteral(u"\U0001F50B emoji ").repeated(50));
    battery.setProperty("BatteryState",
                        QStringLiteral("Discharging for a very very long time in a far away place..."));
    battery.setProperty("CycleCount", qint64{1234567890123});
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
    const QStringList words = QString::fromLocal8Bit(argv[1]).split(u'-');
    const auto has = [&words](const char* word) { return words.contains(QLatin1String(word)); };
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(has("dark") ? test::darkPalette() : test::lightPalette());
    if (has("contrast"))
        QApplication::setPalette(paletteFor({.isDark = has("dark"), .hasStrongContrast = true}));
    if (has("rtl"))
        QApplication::setLayoutDirection(Qt::RightToLeft);

    FactComputer computer;
    const std::pair<const char*, void (*)(FactComputer&)> changes[]{
        {"charging", charging}, {"full", [](FactComputer& c) { c.fillUp(); }},
        {"low", low},           {"held", [](FactComputer& c) { c.holdBack(); }},
        {"nodesign", noDesign}, {"devices", [](FactComputer& c) { c.addDevices(); }},
        {"limit", limit},       {"none", none},
        {"two", two},           {"chip", [](FactComputer& c) { c.setBattery("Manufacturer", {}); }},
    };
    for (const auto& [word, change] : changes) {
        if (has(word))
            change(computer);
    }
    has("demo") ? computer.makeDemo() : computer.make();
    if (has("long"))
        makeLong(*computer.mac);

    const double angle = has("low") ? 241 : has("charging") ? -16 : 4;
    MainInterface interface;
    interface.macObjectController().addObject(computer.mac.get());
    interface.setPowerSources(has("demo") ? nullptr : &computer.platform.powerSources);
    const bool countsEnergies = has("energy") || has("wh");
    computer.platform.powerSources.energyVoltage = countsEnergies ? std::optional(11.4) : std::nullopt;
    interface.setOwnDefaults(&computer.platform.userDefaults.standardDefaults);
    if (has("wh"))
        interface.performClick(FactClick::Capacity);
    interface.statusMenu().setText(interface.outlets().versionItem, QStringLiteral("Version 123"));
    interface.stateOfChargeProgress().setContentFilters({hueFilter(angle)});
    interface.stateOfHealthProgress().setContentFilters({hueFilter(has("low") ? 241 : 4)});

    auto* window = new BatteryWindow(interface, BatteryWindow::Kind::Popup);
    window->open(QPoint(400, 10));
    QApplication::processEvents();
    if (auto* entry = window->findChild<MenuEntry*>())
        entry->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    const bool saved = window->grab().save(QString::fromLocal8Bit(argv[2]));
    if (has("stay"))
        QApplication::exec();
    window->close();
    return saved ? 0 : 1;
}
