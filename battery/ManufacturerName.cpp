#include "battery/ManufacturerName.h"

namespace quindle {

QString manufacturerName(QString reported)
{
    reported.replace(QStringLiteral("DP"), QStringLiteral("Dynapack"));
    reported.replace(QStringLiteral("SMP"), QStringLiteral("Simplo"));
    return reported;
}

} // namespace quindle
