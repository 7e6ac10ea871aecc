#include "application/pages/SystemBatteries.h"

#include "common/NumberConversion.h"
#include "common/NumberTexts.h"
#include "facts/ValueTexts.h"

namespace quindle {

namespace {

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

QString stateOf(const QVariantMap& description)
{
    if (description.value(QStringLiteral("Is Charging")).toBool())
        return QStringLiteral("Charging");
    // What feeds the computer is said of all of its batteries alike; which one does, only its current tells.
    const bool isSupply = text(description, "Type") == QStringLiteral("UPS");
    const qint64 current = convertToInteger(description.value(QStringLiteral("Current"))).value_or(0);
    const bool feeds =
        isSupply ? text(description, "Power Source State") == QStringLiteral("Battery Power") : current < 0;
    return feeds ? QStringLiteral("Discharging") : QString();
}

/// The maker's name for it; a driver that has none gives its type, which several may have.
QString captionOf(const QVariantMap& description, int number)
{
    const QString name = knownText(text(description, "Name"));
    const bool isTypeAlone = name.isEmpty() || name == text(description, "Type");
    return isTypeAlone ? QStringLiteral("Battery %1").arg(number) : name;
}

Fact factOf(const QVariantMap& description, int number)
{
    const std::optional<double> percent = percentOf(description);
    const QString charge =
        percent ? integerText(qRound64(*percent)) + QStringLiteral(" %") : missingValueText();
    Fact fact;
    fact.id = FactId::Peripheral;
    fact.group = FactGroup::Devices;
    fact.caption = captionOf(description, number);
    fact.value = joined(charge, besideEachOther(), stateOf(description));
    fact.detail = knownText(text(description, "BatteryHealth"));
    fact.shown = true;
    fact.percent = percent;
    return fact;
}

} // namespace

std::vector<Fact> systemBatteryFacts(const std::vector<QVariantMap>& descriptions)
{
    std::vector<Fact> facts;
    if (descriptions.size() < 2)
        return facts;
    for (const QVariantMap& description : descriptions)
        facts.push_back(factOf(description, static_cast<int>(facts.size()) + 1));
    return facts;
}

} // namespace quindle
