#pragma once

#include <QObject>
#include <QStringList>

#include "platform/Notifier.h"
#include "platform/linux/session/PresentBus.h"

namespace quindle {

/// Power managers are known by their names on the session bus. They are looked up on request, so that no
/// change on the bus wakes this process.
class LinuxPowerManagers final : public QObject, public PowerManagers
{
    Q_OBJECT

public:
    LinuxPowerManagers();

    void ask(std::function<void(const QString& desktop)> answered) override;

private:
    PresentBus m_bus;
};

/// The desktop whose power manager is among the names on a session bus; empty for none.
QString desktopThatWarns(const QStringList& busNames);

} // namespace quindle
