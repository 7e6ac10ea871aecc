#include "inspect/TextReport.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QDateTime>

#include "common/DateFromText.h"
#include "common/NumberTexts.h"

namespace quindle {

namespace {

struct Row
{
    QString label;
    QString value;
};

struct Group
{
    QString heading;
    std::vector<Row> rows;
};

/// One object of the state, read as texts; empty for what is not there.
class Values
{
public:
    explicit Values(const QVariant& object)
        : m_values(object.toMap())
    {
    }

    QString text(const char* key) const { return value(key).toString(); }

    QString number(const char* key, int decimals, const char* unit) const
    {
        return fixedText(value(key).toDouble(), decimals) + u' ' + QLatin1String(unit);
    }

    QString milliampereHours(const char* key) const
    {
        const qint64 capacity = value(key).toLongLong();
        return capacity == 0 ? QString() : integerText(capacity) + QStringLiteral(" mAh");
    }

    QString day(const char* key) const
    {
        const QDateTime date = value(key).toDateTime();
        return date.isValid() ? dayText(date) : QString();
    }

    /// Dates count from 1980; an earlier one is what a battery that reports none gets.
    bool hasYear1980OrLater(const char* key) const { return value(key).toDateTime().date().year() >= 1980; }

private:
    QVariant value(const char* key) const { return m_values.value(QLatin1String(key)); }

    QVariantMap m_values;
};

/// "first (second)", or the one that is there.
QString with(const QString& first, const QString& second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    return QStringLiteral("%1 (%2)").arg(first, second);
}

QString joined(const QString& first, const QString& between, const QString& second)
{
    return first.isEmpty() || second.isEmpty() ? first : first + between + second;
}

Group statusItemGroup(const QVariantMap& state)
{
    const Values item(state.value(QStringLiteral("statusItem")));
    const Values bars(state.value(QStringLiteral("bars")));
    const QString image = item.text("image");
    Group group{QStringLiteral("Status item"),
                {{QStringLiteral("Title"), item.text("title")},
                 {QStringLiteral("Icon"), image.isEmpty() ? QStringLiteral("none") : image}}};
    if (state.value(QStringLiteral("bars")).isValid()) {
        group.rows.push_back({QStringLiteral("Charge bar"), bars.text("stateOfCharge")});
        group.rows.push_back({QStringLiteral("Health bar"), bars.text("stateOfHealth")});
    }
    const QVariant isLoginItem = state.value(QStringLiteral("isAppLoginItem"));
    if (isLoginItem.isValid())
        group.rows.push_back({QStringLiteral("Starts at login"),
                              isLoginItem.toBool() ? QStringLiteral("yes") : QStringLiteral("no")});
    return group;
}

std::vector<Row> stateRows(const Values& battery)
{
    const QString charge = joined(battery.milliampereHours("CurrentCapacity"), QStringLiteral(" of "),
                                  battery.milliampereHours("FullChargeCapacity"));
    const QString health = joined(battery.milliampereHours("FullChargeCapacity"), QStringLiteral(" of "),
                                  battery.milliampereHours("DesignCapacity"));
    return {
        {QStringLiteral("Charge"), with(battery.number("StateOfCharge", 1, "%"), charge)},
        {QStringLiteral("Health"), with(battery.number("StateOfHealth", 1, "%"), health)},
        {QStringLiteral("Condition"), battery.text("BatteryHealth")},
        {QStringLiteral("State"), battery.text("BatteryState")},
        {battery.text("StateText"), battery.number("WattThroughput", 2, "W")},
        {battery.text("RemainingString"), battery.text("TimeRemaining")},
        {QStringLiteral("Adapter"), with(battery.text("AdapterConnected"), battery.text("AdapterWatt"))},
        {QStringLiteral("Cycles"), battery.text("CycleCount")},
        {QStringLiteral("Temperature"), battery.text("Temperature")},
    };
}

std::vector<Row> identityRows(const Values& battery)
{
    return {
        {QStringLiteral("Manufacturer"), battery.text("Manufacturer")},
        {QStringLiteral("Device"), battery.text("DeviceName")},
        {QStringLiteral("Serial number"), battery.text("SerialNumber")},
        {QStringLiteral("Manufactured"), battery.hasYear1980OrLater("ManufactureDate")
                                             ? with(battery.day("ManufactureDate"), battery.text("CustomAge"))
                                             : QString()},
    };
}

Group batteryGroup(const QVariantMap& state)
{
    Group group{QStringLiteral("Battery"), {}};
    const QVariant object = state.value(QStringLiteral("battery"));
    if (!object.isValid()) {
        group.rows.push_back({QStringLiteral("None"), QStringLiteral("this computer has no battery")});
        return group;
    }
    const Values battery(object);
    group.rows = stateRows(battery);
    const std::vector<Row> identity = identityRows(battery);
    group.rows.insert(group.rows.end(), identity.cbegin(), identity.cend());
    return group;
}

Group computerGroup(const QVariantMap& state)
{
    const Values mac(state.value(QStringLiteral("mac")));
    return {
        QStringLiteral("Computer"),
        {
            {QStringLiteral("Name"), mac.text("Name")},
            {QStringLiteral("Type"), joined(mac.text("Type"), QStringLiteral(" "), mac.text("LongModel"))},
            {QStringLiteral("Model"), mac.text("Model")},
            {QStringLiteral("System"), mac.text("OSXVersion")},
            {QStringLiteral("Serial number"), mac.text("Serial")},
            {QStringLiteral("Built"), mac.text("getBuildDateSerialString").isEmpty()
                                          ? QString() // no serial number tells it: the date is the launch's
                                          : with(mac.text("ManufactureDateString"), mac.text("CustomAge"))},
        }};
}

/// Firmware and users write these texts; a terminal must not obey them.
QString printable(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return text;
}

} // namespace

QString reportText(const QVariantMap& state)
{
    std::vector<Group> groups{statusItemGroup(state), batteryGroup(state), computerGroup(state)};
    qsizetype width = 0;
    for (Group& group : groups) {
        std::erase_if(group.rows, [](const Row& row) { return row.value.isEmpty(); });
        for (const Row& row : group.rows)
            width = std::max(width, row.label.size());
    }
    QStringList paragraphs;
    for (const Group& group : groups) {
        QString lines = group.heading + u'\n';
        for (const Row& row : group.rows)
            lines += QStringLiteral("  ") + printable(row.label).leftJustified(width + 2) +
                     printable(row.value) + u'\n';
        paragraphs.append(lines);
    }
    return paragraphs.join(u'\n');
}

} // namespace quindle
