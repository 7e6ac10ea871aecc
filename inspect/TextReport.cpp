#include "inspect/TextReport.h"

#include <algorithm>

#include <QStringList>

#include "common/SingleLine.h"
#include "facts/Facts.h"

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

QString textAt(const QVariant& object, const char* key)
{
    return object.toMap().value(QLatin1String(key)).toString();
}

bool isKnownPercent(const std::vector<Fact>& facts, FactId id)
{
    return std::any_of(facts.begin(), facts.end(),
                       [id](const Fact& fact) { return fact.id == id && fact.percent; });
}

/// Icon and bars are the battery's: without one, or without the figure behind a bar, they mean nothing.
std::vector<Row> pictureRows(const QVariantMap& state, const std::vector<Fact>& facts)
{
    if (!state.value(QStringLiteral("battery")).isValid())
        return {};
    const QString image = textAt(state.value(QStringLiteral("statusItem")), "image");
    std::vector<Row> rows{{QStringLiteral("Icon"), image.isEmpty() ? QStringLiteral("none") : image}};
    const QVariant bars = state.value(QStringLiteral("bars"));
    if (isKnownPercent(facts, FactId::Charge))
        rows.push_back({QStringLiteral("Charge bar"), textAt(bars, "stateOfCharge")});
    if (isKnownPercent(facts, FactId::Health))
        rows.push_back({QStringLiteral("Health bar"), textAt(bars, "stateOfHealth")});
    return rows;
}

Group statusItemGroup(const QVariantMap& state, const std::vector<Fact>& facts)
{
    Group group{QStringLiteral("Status item"),
                {{QStringLiteral("Title"), textAt(state.value(QStringLiteral("statusItem")), "title")}}};
    const std::vector<Row> pictures = pictureRows(state, facts);
    group.rows.insert(group.rows.end(), pictures.begin(), pictures.end());
    const QVariant isLoginItem = state.value(QStringLiteral("isAppLoginItem"));
    if (isLoginItem.isValid())
        group.rows.push_back({QStringLiteral("Starts at login"),
                              isLoginItem.toBool() ? QStringLiteral("yes") : QStringLiteral("no")});
    return group;
}

/// Charge, state and identity are one group here.
FactGroup groupInReport(FactGroup group)
{
    const bool isOfBattery = group == FactGroup::Summary || group == FactGroup::State;
    return isOfBattery ? FactGroup::Battery : group;
}

Group factGroup(const QString& heading, const std::vector<Fact>& facts, FactGroup group)
{
    Group rows{heading, {}};
    for (const Fact& fact : facts) {
        if (fact.shown && groupInReport(fact.group) == group)
            rows.rows.push_back({fact.caption, factText(fact, FactPlace::Report)});
    }
    return rows;
}

std::vector<Group> reportGroups(const QVariantMap& state, const std::vector<Fact>& facts)
{
    std::vector<Group> groups{statusItemGroup(state, facts),
                              factGroup(QStringLiteral("Battery"), facts, FactGroup::Battery)};
    if (!state.value(QStringLiteral("battery")).isValid())
        groups.back().rows = {{QStringLiteral("None"), QStringLiteral("this computer has no battery")}};
    for (auto& others : {factGroup(QStringLiteral("Batteries"), facts, FactGroup::Batteries),
                         factGroup(QStringLiteral("Devices"), facts, FactGroup::Devices)})
        if (!others.rows.empty())
            groups.push_back(others);
    groups.push_back(factGroup(QStringLiteral("Computer"), facts, FactGroup::Computer));
    return groups;
}

} // namespace

QString reportText(const QVariantMap& state, const std::vector<Fact>& facts)
{
    std::vector<Group> groups = reportGroups(state, facts);
    qsizetype width = 0;
    for (Group& group : groups) {
        // Before the width is measured: what is not shown needs no room.
        std::erase_if(group.rows, [](const Row& row) { return row.value.isEmpty(); });
        for (const Row& row : group.rows)
            width = std::max(width, row.label.size());
    }
    QStringList paragraphs;
    for (const Group& group : groups) {
        QString lines = group.heading + u'\n';
        // Firmware and users write these texts; a terminal must not obey them.
        for (const Row& row : group.rows)
            lines += QStringLiteral("  ") + singleLine(row.label).leftJustified(width + 2) +
                     singleLine(row.value) + u'\n';
        paragraphs.append(lines);
    }
    return paragraphs.join(u'\n');
}

} // namespace quindle
