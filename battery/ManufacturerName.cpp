#include "battery/ManufacturerName.h"

namespace quindle {

QString manufacturerName(QString reported)
{
    // In this order, wherever they stand: names in stored records were made that way. "SMDP" is "SMDynapack".
    reported.replace(QStringLiteral("DP"), QStringLiteral("Dynapack"));
    reported.replace(QStringLiteral("SMP"), QStringLiteral("Simplo"));
    return reported;
}

} // namespace quindle
