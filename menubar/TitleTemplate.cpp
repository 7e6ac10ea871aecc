#include "menubar/TitleTemplate.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/NumberTexts.h"

namespace quindle {

namespace {

// An arrow and the selector that asks for its text form, not its picture.
QString chargingDirection(bool isCharging)
{
    return isCharging ? QStringLiteral(u"\u2B06\uFE0E") : QStringLiteral(u"\u2B07\uFE0E");
}

} // namespace

QString defaultTitleTemplate()
{
    return QStringLiteral("%p%");
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
    QString title = titleTemplate;
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
