#include "facts/SystemBatteries.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "facts/ShownTexts.h"
#include "facts/ValueTexts.h"
#include "platform/PowerSources.h"

namespace quindle {

namespace {

constexpr int rankOfBatteries = 45; // before devices and the computer, which hardly ever changes
// A menu's rows are made before anything is known; laptops have had three at most.
constexpr std::size_t rowsOfMenu = 3;

QString text(const QVariantMap& description, const char* key)
{
    return description.value(QLatin1String(key)).toString();
}

std::optional<double> percentOf(const QVariantMap& description)
{
    const auto held = convertToInteger(description.value(QStringLiteral("Current Capacity")));
    const auto room = convertToInteger(description.value(QStringLiteral("Max Capacity")));
    if (!held || !room || *room <= 0)
        return std::nullopt;
    return double(*held) / double(*room) * 100;
}

QString stateOf(const QVariantMap& description, FactPlace place)
{
    if (description.value(QStringLiteral("Is Charging")).toBool())
        return factWords(place, QT_TRANSLATE_NOOP("Facts", "Charging"));
    // All batteries are reported alike while they feed the computer; only the current shows which one does.
    const bool isSupply = text(description, "Type") == QStringLiteral("UPS");
    const qint64 current = convertToInteger(description.value(QStringLiteral("Current"))).value_or(0);
    const bool feeds =
        isSupply ? text(description, "Power Source State") == QStringLiteral("Battery Power") : current < 0;
    return feeds ? factWords(place, QT_TRANSLATE_NOOP("Facts", "Discharging")) : QString();
}

/// The maker's name for it; a driver that has none gives its type, which several may have.
QString captionOf(const QVariantMap& description, int number, FactPlace place)
{
    const QString name = knownText(text(description, "Name"));
    const bool isTypeAlone = name.isEmpty() || name == text(description, "Type");
    return isTypeAlone ? factWords(place, QT_TRANSLATE_NOOP("Facts", "Battery %1")).arg(number) : name;
}

Fact hidden()
{
    Fact fact;
    fact.id = FactId::EachBattery;
    fact.group = FactGroup::Batteries;
    fact.rank = rankOfBatteries;
    return fact;
}

Fact factOf(const QVariantMap& description, int number, FactPlace place)
{
    const std::optional<double> percent = percentOf(description);
    const QString charge =
        percent ? fixedText(std::round(*percent), 0) + QStringLiteral(" %") : missingValueText();
    Fact fact = hidden();
    fact.caption = captionOf(description, number, place);
    fact.value = besideEachOther(charge, stateOf(description, place));
    fact.detail = modelText(place, knownText(text(description, "BatteryHealth")));
    fact.shown = true;
    fact.percent = percent;
    return fact;
}

/// Whether it is one of the computer's own, and present. A bay may be empty, and sources may be anything.
bool isBattery(const QVariantMap& description)
{
    const QString type = text(description, "Type");
    const bool isThere = description.value(QStringLiteral("Is Present"), true).toBool();
    return isThere && (type == QStringLiteral("InternalBattery") || type == QStringLiteral("UPS"));
}

std::vector<QVariantMap> descriptionsOf(PowerSources& sources)
{
    std::vector<QVariantMap> descriptions;
    const int count = sources.sourceCount().value_or(0);
    for (int source = 0; source < count; ++source)
        if (const auto description = sources.description(source))
            descriptions.push_back(*description);
    return descriptions;
}

} // namespace

std::vector<Fact> systemBatteryFacts(const std::vector<QVariantMap>& descriptions, FactPlace place)
{
    std::vector<Fact> facts;
    for (const QVariantMap& description : descriptions)
        if (isBattery(description))
            facts.push_back(factOf(description, static_cast<int>(facts.size()) + 1, place));
    if (facts.size() < 2)
        facts.clear();
    return facts;
}

void addSystemBatteryFacts(std::vector<Fact>& facts, FactPlace place, PowerSources* powerSources)
{
    if (place == FactPlace::ToolTip)
        return;
    std::vector<Fact> batteries;
    if (powerSources)
        batteries = systemBatteryFacts(descriptionsOf(*powerSources), place);
    if (place == FactPlace::Menu)
        batteries.resize(rowsOfMenu, hidden());
    facts.insert(facts.end(), batteries.begin(), batteries.end());
}

} // namespace quindle
