#include "menubar/TitleTemplate.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/NumberTexts.h"
#include "settings/SettingsTable.h"

namespace quindle {

namespace {

// An arrow and the selector that asks for its text form, not its picture.
QString chargingDirection(bool isCharging)
{
    return isCharging ? QStringLiteral(u"\u2B06\uFE0E") : QStringLiteral(u"\u2B07\uFE0E");
}

// Nobody reads a longer title, and making and sending one keeps helper and panel busy.
constexpr qsizetype longestTemplate = 4096;

QString cutTemplate(const QString& titleTemplate)
{
    // Half a character is not text, and the bus would refuse the title.
    const bool splitsCharacter =
        titleTemplate.size() > longestTemplate && titleTemplate[longestTemplate - 1].isHighSurrogate();
    return titleTemplate.left(splitsCharacter ? longestTemplate - 1 : longestTemplate);
}

} // namespace

QString defaultTitleTemplate()
{
    return DefaultValues::customStatusBar.toString();
}

QString titleFromTemplate(const QString& titleTemplate, const TitleValues& values)
{
    const std::array<std::pair<QString, QString>, 7> replacements{{
        {QStringLiteral("%t"), shortestText(values.temperature)},
        {QStringLiteral("%s"), chargingDirection(values.isCharging)},
        {QStringLiteral("%r"), values.timeRemaining},
        {QStringLiteral("%p"), fixedText(values.stateOfCharge, 1)},
        {QStringLiteral("%w"), fixedText(values.wattThroughput, 1)},
        {QStringLiteral("%mA"), integerText(values.amperage)},
        {QStringLiteral("%l"), integerText(values.cycleCount)},
    }};
    // inherited: replaced one after the other, so that users' templates keep their meaning.
    QString title = cutTemplate(titleTemplate);
    for (const auto& [placeholder, text] : replacements)
        title.replace(placeholder, text);
    return title;
}

bool showsPassingFigures(const QString& titleTemplate)
{
    const std::array passing{QStringLiteral("%r"), QStringLiteral("%w"), QStringLiteral("%mA")};
    return std::any_of(passing.begin(), passing.end(), [&titleTemplate](const QString& placeholder) {
        return titleTemplate.contains(placeholder);
    });
}

} // namespace quindle
