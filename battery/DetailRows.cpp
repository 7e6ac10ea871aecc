#include "battery/DetailRows.h"

#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "common/ValueDescription.h"
#include "platform/PowerSources.h"

namespace quindle {

std::vector<QVariantMap> describePowerSources(PowerSources& powerSources)
{
    const auto count = powerSources.sourceCount();
    if (!count) // inherited: fatal; an empty list would look like a computer without power sources
        fatalError(u"the power sources cannot be listed");
    std::vector<QVariantMap> descriptions;
    descriptions.reserve(static_cast<std::size_t>(*count));
    for (int source = 0; source < *count; ++source) {
        auto description = powerSources.description(source);
        if (!description) // inherited: fatal for the same reason
            fatalError(u"a power source cannot be described");
        descriptions.push_back(std::move(*description));
    }
    return descriptions;
}

QString detailText(const QVariant& value)
{
    if (const auto boolean = convertToBoolean(value)) // inherited: numbers 0 and 1 too
        return *boolean ? QStringLiteral("YES") : QStringLiteral("NO");
    // Any type: which keys there are is not known in advance.
    return valueDescription(value);
}

QVariantMap detailRow(const QVariantMap& description)
{
    QVariantMap row;
    for (auto entry = description.cbegin(); entry != description.cend(); ++entry)
        // Keys come in order, so each goes to the end without a search.
        row.insert(row.cend(), entry.key(), detailText(entry.value()));
    return row;
}

} // namespace quindle
