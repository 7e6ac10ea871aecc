#include "inspect/BarLines.h"

#include <QVariantMap>

#include "common/JsonText.h"
#include "common/SingleLine.h"

namespace quindle {

namespace {

QVariant percentage(const BarState& state)
{
    return state.percentage ? QVariant(*state.percentage) : QVariant();
}

QVariantMap plainObject(const BarState& state)
{
    return {
        {QStringLiteral("title"), state.title},       {QStringLiteral("tooltip"), state.toolTip},
        {QStringLiteral("icon"), state.icon},         {QStringLiteral("state"), state.state},
        {QStringLiteral("class"), state.colourClass}, {QStringLiteral("percentage"), percentage(state)},
    };
}

/// Only what asks for attention has a colour; the rest is written in the bar's own.
QString attentionColour(const QString& colourClass)
{
    if (colourClass == QStringLiteral("warning"))
        return QStringLiteral("#d79921");
    return colourClass == QStringLiteral("critical") ? QStringLiteral("#fb4934") : QString();
}

bool isUrgent(const BarState& state)
{
    // A low battery that is charging needs no attention.
    return state.colourClass == QStringLiteral("critical") && state.state == QStringLiteral("discharging");
}

/// Private keys begin with an underscore, as the protocol requires.
QVariantMap i3barBlock(const BarState& state)
{
    QVariantMap block{
        {QStringLiteral("name"), QStringLiteral("quindle")},
        {QStringLiteral("full_text"), singleLine(state.title)},
        {QStringLiteral("urgent"), isUrgent(state)},
        {QStringLiteral("_icon"), state.icon},
        {QStringLiteral("_state"), state.state},
        {QStringLiteral("_class"), state.colourClass},
        {QStringLiteral("_percentage"), percentage(state)},
    };
    if (state.percentage)
        block.insert(QStringLiteral("short_text"), QStringLiteral("%1%").arg(*state.percentage));
    if (const QString colour = attentionColour(state.colourClass); !colour.isEmpty())
        block.insert(QStringLiteral("color"), colour);
    return block;
}

/// Both texts are markup there.
QVariantMap waybarObject(const BarState& state)
{
    QVariantMap object{
        {QStringLiteral("text"), singleLine(state.title).toHtmlEscaped()},
        {QStringLiteral("tooltip"), state.toolTip.toHtmlEscaped()},
        {QStringLiteral("alt"), state.state},
        {QStringLiteral("class"), state.colourClass},
        {QStringLiteral("icon"), state.icon},
    };
    if (state.percentage) // a null is not a number to it, and it would refuse the whole line
        object.insert(QStringLiteral("percentage"), *state.percentage);
    return object;
}

struct Name
{
    const char* text;
    BarFormat format;
};

constexpr Name names[] = {
    {"text", BarFormat::Text},
    {"json", BarFormat::Json},
    {"i3bar", BarFormat::I3bar},
    {"waybar", BarFormat::Waybar},
};

} // namespace

QByteArray barHeader(BarFormat format)
{
    // i3bar reads an array that never ends.
    return format == BarFormat::I3bar ? QByteArrayLiteral("{\"version\":1}\n[\n") : QByteArray();
}

QByteArray barLine(BarFormat format, const BarState& state)
{
    switch (format) {
    case BarFormat::Text:
        break;
    case BarFormat::Json:
        return jsonText(plainObject(state));
    case BarFormat::I3bar:
        return '[' + jsonText(i3barBlock(state)) + ']';
    case BarFormat::Waybar:
        return jsonText(waybarObject(state));
    }
    // A title may hold line breaks, and bars take each line for a new state.
    return singleLine(state.title).toUtf8();
}

QByteArray barSeparator(BarFormat format)
{
    return format == BarFormat::I3bar ? QByteArrayLiteral(",") : QByteArray();
}

std::optional<BarFormat> barFormatNamed(const QString& name)
{
    for (const Name& known : names)
        if (name == QLatin1String(known.text))
            return known.format;
    return std::nullopt;
}

} // namespace quindle
