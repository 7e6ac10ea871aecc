#include "facts/ComputerFacts.h"

#include <optional>

#include "common/Translation.h"
#include "facts/FactRule.h"
#include "facts/ShownTexts.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"

namespace quindle {

namespace {

struct ComputerSource
{
    const QDMac& mac;
    FactPlace place;
};

/// The name is the caption: both are about the computer as a whole.
FactText nameAndType(const ComputerSource& source)
{
    const QString name = knownText(source.mac.Name());
    return {.value = knownText(source.mac.Type()), .caption = name, .isCaptionEnough = !name.isEmpty()};
}

FactText name(const ComputerSource& source)
{
    return {.value = knownText(source.mac.Name())};
}

FactText type(const ComputerSource& source)
{
    const QString type = knownText(source.mac.Type());
    // Elsewhere the words for the model have a row of their own.
    if (type.isEmpty() || source.place != FactPlace::Report)
        return {.value = type};
    return {.value = joined(type, QStringLiteral(" "), knownText(source.mac.LongModel()))};
}

/// The words if they are known, with the identifier as tool tip; else the identifier, as always in the
/// report.
FactText model(const ComputerSource& source)
{
    const QString identifier = knownText(source.mac.Model());
    const QString words = knownText(source.mac.LongModel());
    if (source.place == FactPlace::Report || words.isEmpty())
        return {.value = identifier};
    return {.value = words, .toolTip = identifier};
}

FactText operatingSystem(const ComputerSource& source)
{
    return {.value = knownText(source.mac.OSXVersion())};
}

FactText computerSerial(const ComputerSource& source)
{
    return {.value = knownText(source.mac.Serial())};
}

FactText computerAge(const ComputerSource& source)
{
    // The moment of the start stands in for a date, and would be shown as an age of 0 days.
    if (!source.mac.knowsManufactureDate())
        return {};
    const QString day = knownText(source.mac.ManufactureDateString());
    const QString age = modelText(source.place, knownText(source.mac.CustomAge()));
    if (source.place == FactPlace::Report)
        return {.value = day, .detail = age};
    return {.value = age, .toolTip = day.isEmpty() ? day : translated("Facts", "Built %1").arg(day)};
}

using Id = FactId;
using Group = FactGroup;

// In the report's order; the other places order by rank.
constexpr FactRule<ComputerSource> computerTable[]{
    {Id::Computer, Group::Computer, 50, {QT_TRANSLATE_NOOP("Facts", "Type"), nullptr, nullptr}, nameAndType},
    {Id::Name, Group::Computer, 50, {nullptr, QT_TRANSLATE_NOOP("Facts", "Computer"), "Name"}, name},
    {Id::Type, Group::Computer, 51, {nullptr, QT_TRANSLATE_NOOP("Facts", "Type"), "Type"}, type},
    {Id::Model, Group::Computer, 52, everywhere(QT_TRANSLATE_NOOP("Facts", "Model")), model},
    {Id::System, Group::Computer, 53, everywhere(QT_TRANSLATE_NOOP("Facts", "System")), operatingSystem},
    {Id::ComputerSerial, Group::Computer, 90, inViewAndReport(QT_TRANSLATE_NOOP("Facts", "Serial number")),
     computerSerial},
    {Id::ComputerAge,
     Group::Computer,
     54,
     {QT_TRANSLATE_NOOP("Facts", "Age"), QT_TRANSLATE_NOOP("Facts", "Computer age"), "Built"},
     computerAge,
     FactClick::ComputerAge},
};

} // namespace

void addComputerFacts(std::vector<Fact>& facts, FactPlace place, const QDMac* mac)
{
    std::optional<ComputerSource> source;
    if (mac)
        source.emplace(ComputerSource{*mac, place});
    addFacts(facts, computerTable, place, source);
}

} // namespace quindle
