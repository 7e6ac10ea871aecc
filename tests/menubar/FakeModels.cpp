#include "tests/menubar/FakeModels.h"

namespace quindle::test {

void FakeBattery::toggleAge()
{
    customAge = QStringLiteral("912 days");
    Q_EMIT changed();
}

void FakeBattery::toggleTemperatureMode()
{
    temperature = QStringLiteral(u"86.0 \u00B0F");
    Q_EMIT changed();
}

void FakeMac::toggleAge()
{
    customAge = QStringLiteral("2.8 years");
    Q_EMIT changed();
}

} // namespace quindle::test
