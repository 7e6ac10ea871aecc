#include "settings/StatisticsHost.h"

#include "platform/Bundle.h"

namespace quindle {

QString statisticsHost(const Bundle& bundle)
{
    const auto info = bundle.infoDictionary();
    return info ? info->value(QStringLiteral("QDStatisticsHost")).toString() : QString();
}

} // namespace quindle
