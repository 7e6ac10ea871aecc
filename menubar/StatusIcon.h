#pragma once

#include <map>
#include <memory>

#include <QString>

namespace quindle {

class Image;

/// The asset shown on a computer without a battery.
QString noBatteryIconName();

/// The asset for charging or external power: "#bat44Charge" from 80 %, else "#bat04Charge".
QString chargingIconName(double stateOfCharge);

/// The asset on battery: "#bat44" from 90 %, "#bat34" from 70, "#bat24" from 40, "#bat14" from 20, else
/// "#bat04" (also for a charge that is not a number).
QString batteryIconName(double stateOfCharge);

/// Images by name, one shared object for each: what is set on it (size, template mark) is still there the
/// next time the name is asked for.
class NamedImages
{
public:
    std::shared_ptr<Image> imageNamed(const QString& name);

private:
    std::map<QString, std::shared_ptr<Image>> m_images;
};

} // namespace quindle
