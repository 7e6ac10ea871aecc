#pragma once

#include <QDBusConnection>

#include "platform/PowerHistory.h"

namespace quindle {

/// What UPower has recorded of this computer's battery, asked for over the system bus. UPower is not started
/// for it.
class UPowerHistory : public PowerHistory
{
public:
    explicit UPowerHistory(QDBusConnection systemBus);

    std::optional<RecordedPower> lastWeek() override;

private:
    QDBusMessage answer(const QString& path, const QString& interface, const QString& method,
                        const QVariantList& arguments = {});
    std::optional<QString> onlyBattery();
    std::optional<bool> isSystemBattery(const QString& device);
    std::optional<std::vector<PowerHistoryPoint>> history(const QString& device, const QString& type);

    QDBusConnection m_bus;
};

} // namespace quindle
