#include "facts/ShownTexts.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "common/Translation.h"

namespace quindle {

namespace {

// What the models say by themselves, and the words that drivers have for health and level. Words of drivers
// that are not here, such as an error's, are shown as they come.
constexpr const char* wordsOfModels[]{
    QT_TRANSLATE_NOOP("Facts", "Charged"),
    QT_TRANSLATE_NOOP("Facts", "Charging..."),
    QT_TRANSLATE_NOOP("Facts", "Discharging..."),
    QT_TRANSLATE_NOOP("Facts", "Battery usage"),
    QT_TRANSLATE_NOOP("Facts", "Charging with"),
    QT_TRANSLATE_NOOP("Facts", "Chargin with"), // inherited: the spelling
    QT_TRANSLATE_NOOP("Facts", "Discharging with"),
    QT_TRANSLATE_NOOP("Facts", "Battery fully charged"),
    QT_TRANSLATE_NOOP("Facts", "Time until full"),
    QT_TRANSLATE_NOOP("Facts", "Time until empty"),
    QT_TRANSLATE_NOOP("Facts", "Calculating..."),
    QT_TRANSLATE_NOOP("Facts", "Connected"),
    QT_TRANSLATE_NOOP("Facts", "Not connected"),
    QT_TRANSLATE_NOOP("Facts", "No Errors"),
    QT_TRANSLATE_NOOP("Facts", "Good"),
    QT_TRANSLATE_NOOP("Facts", "Fair"),
    QT_TRANSLATE_NOOP("Facts", "Poor"),
    QT_TRANSLATE_NOOP("Facts", "Critical"),
    QT_TRANSLATE_NOOP("Facts", "Low"),
    QT_TRANSLATE_NOOP("Facts", "Normal"),
    QT_TRANSLATE_NOOP("Facts", "High"),
    QT_TRANSLATE_NOOP("Facts", "Full"),
    QT_TRANSLATE_NOOP("Facts", "The number of charge/discharge cycles the battery has experienced."),
    QT_TRANSLATE_NOOP(
        "Facts",
        "The capacity the battery reports it had after it left the factory. (stored in the Firmware)"),
    QT_TRANSLATE_NOOP(
        "Facts",
        "The actual capacity the battery had after it left the factory. (reported by the manufacturer)"),
};

/// The number before `unit`; nothing where there is none.
std::optional<QString> numberBefore(const QString& text, QLatin1StringView unit)
{
    if (!text.endsWith(unit))
        return std::nullopt;
    const QString number = text.chopped(unit.size());
    bool isNumber = false;
    static_cast<void>(number.toDouble(&isNumber));
    return isNumber ? std::optional(number) : std::nullopt;
}

/// Ages and powers; empty for another text.
QString translatedAmount(const QString& text)
{
    if (const auto days = numberBefore(text, QLatin1StringView(" days")))
        return translated("Facts", "%1 days", "age", days->toLongLong()).arg(*days);
    if (const auto months = numberBefore(text, QLatin1StringView(" months")))
        return translated("Facts", "%1 months", "age", months->toLongLong()).arg(*months);
    if (const auto years = numberBefore(text, QLatin1StringView(" years")))
        return translated("Facts", "%1 years", "age with one decimal").arg(withDecimalSign(*years));
    if (const auto watts = numberBefore(text, QLatin1StringView(" Watts")))
        return translated("Facts", "%1 Watts").arg(withDecimalSign(*watts));
    return {};
}

} // namespace

QString factWords(FactPlace place, const char* text)
{
    return place == FactPlace::Report ? QString::fromUtf8(text) : translated("Facts", text);
}

QString modelText(FactPlace place, const QString& text)
{
    if (place == FactPlace::Report)
        return text;
    const auto* const known =
        std::find_if(std::begin(wordsOfModels), std::end(wordsOfModels),
                     [&text](const char* words) { return text == QLatin1StringView(words); });
    if (known != std::end(wordsOfModels))
        return translated("Facts", *known);
    const QString amount = translatedAmount(text);
    return amount.isEmpty() ? text : amount;
}

QString modelFigure(FactPlace place, const QString& text)
{
    return place == FactPlace::Report ? text : withDecimalSign(text);
}

} // namespace quindle
