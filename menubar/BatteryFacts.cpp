#include "menubar/BatteryFacts.h"

#include <array>
#include <optional>
#include <utility>

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
    const char16_t* condition = nullptr; ///< the path of what must be so
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
    FactPattern{u"Battery age", u"{Battery.CustomAge}", Shown::WithValue, u"Battery.knowsManufactureDate"},
    FactPattern{u"Temperature", u"{Battery.Temperature}", Shown::WithValue, u"Battery.knowsTemperature"},
    FactPattern{u"Adapter", u"{Battery.AdapterConnected} · {Battery.AdapterWatt}"},
    FactPattern{u"Computer", u"{Name}"},
    FactPattern{u"Type", u"{Type}"},
    FactPattern{u"Model", u"{LongModel|Model}"},
    FactPattern{u"System", u"{OSXVersion}"},
    FactPattern{u"Computer age", u"{CustomAge}", Shown::WithValue, u"knowsManufactureDate"},
};

KeyPath statePath()
{
    return KeyPath(QStringLiteral("Battery.BatteryState"));
}

QObject* batteryOf(const QObject* mac)
{
    return mac ? mac->property("Battery").value<QObject*>() : nullptr;
}

bool hasState(const QObject* battery)
{
    return battery && tellsSomething(battery->property("BatteryState"));
}

} // namespace

bool hasBattery(const QObject* mac)
{
    return batteryOf(mac) != nullptr;
}

struct BatteryFacts::Fact
{
    explicit Fact(const FactPattern& pattern);

    bool readValues(const QObject* mac);
    QString text() const;
    QVariant valueOf(const KeyPath& path) const;

    DisplayPattern caption;
    DisplayPattern value;
    Shown shown;
    std::optional<KeyPath> condition;
    std::vector<KeyPath> paths;
    std::vector<QVariant> values;
};

BatteryFacts::Fact::Fact(const FactPattern& pattern)
    : caption(QString::fromUtf16(pattern.caption))
    , value(QString::fromUtf16(pattern.value))
    , shown(pattern.shown)
    , paths(caption.paths())
{
    if (pattern.condition)
        condition = KeyPath(QString::fromUtf16(pattern.condition));
    if (condition)
        paths.push_back(*condition);
    for (const KeyPath& path : value.paths())
        paths.push_back(path);
    if (shown == Shown::WithState)
        paths.push_back(statePath());
    values.resize(paths.size());
}

/// True when one of them is another one.
bool BatteryFacts::Fact::readValues(const QObject* mac)
{
    bool differs = false;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        QVariant now = paths[i].resolve(mac).value;
        if (now == values[i])
            continue;
        values[i] = std::move(now);
        differs = true;
    }
    return differs;
}

QString BatteryFacts::Fact::text() const
{
    if (condition && !tellsSomething(valueOf(*condition)))
        return {};
    const auto resolve = [this](const KeyPath& path) { return valueOf(path); };
    const auto captionText = caption.text(resolve);
    const auto shownValue = value.text(resolve);
    if (captionText && shownValue)
        return singleLine(*captionText, longestText) + u'\t' + singleLine(*shownValue, longestText);
    const bool stateIsKnown = shown == Shown::WithState && tellsSomething(valueOf(statePath()));
    return captionText && stateIsKnown ? singleLine(*captionText, longestText) : QString();
}

QVariant BatteryFacts::Fact::valueOf(const KeyPath& path) const
{
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (paths[i].text() == path.text())
            return values[i];
    }
    return {};
}

BatteryFacts::BatteryFacts()
    : m_texts(factPatterns.size())
{
    for (const FactPattern& pattern : factPatterns)
        m_facts.emplace_back(pattern);
}

BatteryFacts::~BatteryFacts() = default;

void BatteryFacts::update(const QObject* mac)
{
    for (std::size_t i = 0; i < m_facts.size(); ++i) {
        if (m_facts[i].readValues(mac))
            m_texts[i] = m_facts[i].text();
    }
}

QString toolTipText(const QObject* mac)
{
    const QObject* battery = batteryOf(mac);
    if (!battery)
        return QStringLiteral("No battery");
    static const DisplayPattern state(QStringLiteral(u"{BatteryState} \u00B7 {WattThroughput:watts}"));
    const auto resolve = [battery](const KeyPath& path) { return path.resolve(battery).value; };
    QString power = state.text(resolve).value_or(QString());
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
