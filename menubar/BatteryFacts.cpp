#include "menubar/BatteryFacts.h"

#include <array>

#include <QObject>

#include "menubar/DisplayPattern.h"
#include "menubar/ValueTexts.h"

namespace quindle {

namespace {

// Menus grow as wide as their longest row.
constexpr qsizetype longestText = 60;

enum class Shown {
    WithValue,
    WithState, ///< also a caption alone ("Calculating..."), as long as a state is known
};

struct FactPattern
{
    const char16_t* caption;
    const char16_t* value;
    Shown shown = Shown::WithValue;
};

constexpr std::array factPatterns{
    FactPattern{u"Charge", u"{Battery.StateOfCharge:percent}"},
    FactPattern{u"Capacity",
                u"{Battery.CurrentCapacity:capacity} of {Battery.FullChargeCapacity:capacity} mAh"},
    FactPattern{u"State", u"{Battery.BatteryState}"},
    FactPattern{u"{Battery.StateText}", u"{Battery.WattThroughput:watts}"},
    FactPattern{u"{Battery.RemainingString}", u"{Battery.TimeRemaining}", Shown::WithState},
    FactPattern{u"Health", u"{Battery.StateOfHealth:percent} · {Battery.BatteryHealth}"},
    FactPattern{u"Full charge",
                u"{Battery.FullChargeCapacity:capacity} of {Battery.DesignCapacity:capacity} mAh"},
    FactPattern{u"Cycles", u"{Battery.CycleCount:grouped}"},
    FactPattern{u"Battery made by", u"{Battery.Manufacturer} · {Battery.DeviceName}"},
    FactPattern{u"Battery age", u"{Battery.CustomAge}"},
    FactPattern{u"Temperature", u"{Battery.Temperature}"},
    FactPattern{u"Adapter", u"{Battery.AdapterConnected} · {Battery.AdapterWatt}"},
    FactPattern{u"Battery serial number", u"{Battery.SerialNumber}"},
    FactPattern{u"Computer", u"{Name}"},
    FactPattern{u"Type", u"{Type}"},
    FactPattern{u"Model", u"{LongModel|Model}"},
    FactPattern{u"System", u"{OSXVersion}"},
    FactPattern{u"Computer age", u"{CustomAge}"},
    FactPattern{u"Computer serial number", u"{Serial}"},
};

struct Fact
{
    DisplayPattern caption;
    DisplayPattern value;
    Shown shown;
};

const std::vector<Fact>& facts()
{
    static const std::vector<Fact> parsed = [] {
        std::vector<Fact> made;
        for (const FactPattern& pattern : factPatterns) {
            made.push_back({DisplayPattern(QString::fromUtf16(pattern.caption)),
                            DisplayPattern(QString::fromUtf16(pattern.value)), pattern.shown});
        }
        return made;
    }();
    return parsed;
}

QObject* batteryOf(const QObject* mac)
{
    return mac ? mac->property("Battery").value<QObject*>() : nullptr;
}

bool hasState(const QObject* battery)
{
    return battery && tellsSomething(battery->property("BatteryState"));
}

QString factText(const Fact& fact, const DisplayPattern::Resolver& resolve, bool stateIsKnown)
{
    const auto caption = fact.caption.text(resolve);
    const auto value = fact.value.text(resolve);
    if (caption && value)
        return singleLine(*caption, longestText) + u'\t' + singleLine(*value, longestText);
    return caption && fact.shown == Shown::WithState && stateIsKnown ? singleLine(*caption, longestText)
                                                                     : QString();
}

} // namespace

bool hasBattery(const QObject* mac)
{
    return batteryOf(mac) != nullptr;
}

std::vector<QString> factTexts(const QObject* mac)
{
    const auto resolve = [mac](const KeyPath& path) { return path.resolve(mac).value; };
    std::vector<QString> texts;
    texts.reserve(facts().size());
    const bool stateIsKnown = hasState(batteryOf(mac));
    for (const Fact& fact : facts())
        texts.push_back(factText(fact, resolve, stateIsKnown));
    return texts;
}

QString toolTipText(const QObject* mac)
{
    const QObject* battery = batteryOf(mac);
    if (!battery)
        return QStringLiteral("No battery");
    static const DisplayPattern state(QStringLiteral(u"{BatteryState} \u00B7 {WattThroughput:watts}"));
    const auto resolve = [battery](const KeyPath& path) { return path.resolve(battery).value; };
    const QString power = state.text(resolve).value_or(QString());
    if (!hasState(battery))
        return power;
    const QString caption = battery->property("RemainingString").toString();
    const QString time = battery->property("TimeRemaining").toString();
    return power + u'\n' + (caption + u' ' + time).trimmed();
}

QString singleLine(const QString& text, qsizetype length)
{
    QString line = text.left(length + 1);
    for (QChar& character : line) {
        const bool breaks = character.category() == QChar::Other_Control ||
                            character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if (breaks)
            character = u' ';
    }
    if (line.size() <= length)
        return line;
    // A character of two code units is not cut in half.
    line.truncate(line[length - 2].isHighSurrogate() ? length - 2 : length - 1);
    return line + QChar(u'\u2026');
}

} // namespace quindle
