#pragma once

#include <QObject>

#include "platform/PowerManagers.h"

namespace quindle {

/// On a Mac no program warns of a low battery: the system does, always.
class MacPowerManagers final : public QObject, public PowerManagers
{
public:
    void ask(std::function<void(const QString& desktop)> answered) override;
};

} // namespace quindle
