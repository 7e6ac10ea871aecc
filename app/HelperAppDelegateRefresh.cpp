// The refresh of the status item: font, icon, title, texts around it, bar colours.

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "common/NumberTexts.h"
#include "facts/Facts.h"
#include "mac/QDMac.h"
#include "menubar/StatusIcon.h"
#include "menubar/TitleTemplate.h"
#include "platform/Image.h"
#include "platform/Platform.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "settings/ApplicationPreferences.h"

namespace quindle {

namespace {

constexpr double menuBarFontSize = 12.0; // points
constexpr double imageSide = 21.0;       // points
constexpr qint64 iconsShown = 1;         // inherited: the one value of showIconsInMenuBar that shows icons
constexpr qint64 fahrenheitIndex = 1;    // the one value of temperatureSettingIndex that is not Celsius

} // namespace

void HelperAppDelegate::updateStatusBarTitle()
{
    checkForAutoSaveData();
    if (m_myMac->followBattery())
        chooseView();
    m_statusItem->setMenuBarFontSize(menuBarFontSize);
    if (const QDBattery* battery = m_myMac->Battery()) {
        updateIcon(*battery);
        updateTitle(*battery);
        setProgressIndicatorColor();
    } else {
        showNoBattery();
    }
    updateFacts();
    Q_EMIT statusItemRefreshed();
}

void HelperAppDelegate::reloadBattery()
{
    if (QDBattery* battery = m_myMac->Battery()) {
        battery->loadSettings();
        battery->updateData();
    }
}

void HelperAppDelegate::showNoBattery()
{
    m_statusItem->setTitle(QStringLiteral(""));
    showImage(noBatteryIconName());
}

void HelperAppDelegate::updateIcon(const QDBattery& battery)
{
    m_statusItem->setTitle(QStringLiteral("100 %")); // inherited: stands until the title below replaces it
    const bool showsIcons = m_preferences.showIconsInMenuBar() == iconsShown;
    if (battery.isCharging() || battery.isACPowered()) {
        if (showsIcons)
            replaceTemplateImage(chargingIconName(battery.StateOfCharge()));
        else
            m_statusItem->setImage(nullptr);
        return;
    }
    if (battery.isACPowered()) // inherited: asked again; an adapter plugged in since then leaves the icon
        return;
    if (showsIcons)
        replaceTemplateImage(batteryIconName(battery.StateOfCharge()));
    else
        m_statusItem->setImage(nullptr);
}

void HelperAppDelegate::replaceTemplateImage(const QString& name)
{
    // inherited: marks the outgoing image, not the new one; the mark stays with its name.
    if (const auto current = m_statusItem->image())
        current->setTemplate(true);
    showImage(name);
}

void HelperAppDelegate::showImage(const QString& name)
{
    const auto image = m_images.imageNamed(name);
    m_statusItem->setImage(image);
    // inherited: width and height one after the other.
    image->setSize(QSizeF(imageSide, image->size().height()));
    image->setSize(QSizeF(image->size().width(), imageSide));
}

std::optional<TitleValues> HelperAppDelegate::titleValues() const
{
    if (const QDBattery* battery = m_myMac->Battery())
        return titleValuesOf(*battery);
    return std::nullopt;
}

Punctuality HelperAppDelegate::watchValues() const
{
    return m_platform.runLoop.keepPunctual();
}

TitleValues HelperAppDelegate::titleValuesOf(const QDBattery& battery) const
{
    const bool isFahrenheit = m_preferences.temperatureSettingIndex() == fahrenheitIndex;
    TitleValues values;
    values.temperature =
        battery.temperatureValue(isFahrenheit ? TemperatureUnit::Fahrenheit : TemperatureUnit::Celsius);
    values.isCharging = battery.isCharging();
    values.timeRemaining = battery.TimeRemaining();
    values.stateOfCharge = battery.StateOfCharge();
    values.wattThroughput = battery.WattThroughput();
    values.amperage = battery.amperage();
    values.cycleCount = battery.CycleCount();
    values.knowsTemperature = battery.knowsTemperature();
    values.knowsPower = battery.knowsPower();
    values.knowsCurrent = battery.knowsCurrent();
    return values;
}

void HelperAppDelegate::updateTitle(const QDBattery& battery)
{
    const QString title = titleFromTemplate(m_preferences.customStatusBar(), titleValuesOf(battery));
    m_statusItem->setTitle(title);
    m_statusItem->setTitle(title); // inherited: set twice in a row
}

void HelperAppDelegate::updateFacts()
{
    m_statusItem->setToolTipText(toolTipText({m_myMac.get()}));
    const QDBattery* battery = m_myMac->Battery();
    m_statusItem->setFallbackText(battery ? fixedText(battery->StateOfCharge(), 0) : QString());
    m_statusItem->setFallbackOnPower(battery && (battery->isCharging() || battery->isACPowered()));
    m_interface.updateFacts(m_statusItem->title());
}

const std::shared_ptr<HueFilter>& HelperAppDelegate::filterFor(BarColour colour) const
{
    switch (colour) {
    case BarColour::Green:
        return m_hueColorGreen;
    case BarColour::Yellow:
        return m_hueColorYellow;
    case BarColour::Red:
        break;
    }
    return m_hueColorRed;
}

void HelperAppDelegate::setProgressIndicatorColor()
{
    const QDBattery* battery = m_myMac->Battery();
    if (!battery)
        return;
    const double charge = battery->StateOfCharge();
    if (const auto colour = chargeBarColour(charge))
        required(m_outlets.stateOfChargeProgress).setContentFilters({filterFor(*colour)});
    if (const auto colour = healthBarColour(battery->StateOfHealth(), charge))
        required(m_outlets.stateOfHealthProgress).setContentFilters({filterFor(*colour)});
}

} // namespace quindle
