#include "menubar/StatusIcon.h"

#include "platform/Image.h"

namespace quindle {

// inherited: the names of the pictures; interface files know them too.
QString noBatteryIconName()
{
    return QStringLiteral("AppIconBW");
}

QString chargingIconName(double stateOfCharge)
{
    return stateOfCharge >= 80 ? QStringLiteral("#bat44Charge") : QStringLiteral("#bat04Charge");
}

QString batteryIconName(double stateOfCharge)
{
    if (stateOfCharge >= 90)
        return QStringLiteral("#bat44");
    if (stateOfCharge >= 70)
        return QStringLiteral("#bat34");
    if (stateOfCharge >= 40)
        return QStringLiteral("#bat24");
    if (stateOfCharge >= 20)
        return QStringLiteral("#bat14");
    return QStringLiteral("#bat04");
}

std::shared_ptr<Image> NamedImages::imageNamed(const QString& name)
{
    std::shared_ptr<Image>& image = m_images[name];
    if (!image)
        image = std::make_shared<Image>(name);
    return image;
}

} // namespace quindle
