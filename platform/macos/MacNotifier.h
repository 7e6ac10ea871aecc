#pragma once

#include <memory>
#include <optional>

#include <QObject>

#include "platform/Notifier.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// Shows the notification by the system's service, which asks the user the first time whether it may.
class MacNotifier final : public Notifier
{
public:
    explicit MacNotifier(NoticeCalls& calls);

    void show(const Notification& notification) override;
    void withdraw() override;

private:
    void hearPermission(bool isGranted, const QString& fault);
    void hearShown(const QString& fault);
    void report(const QString& fault);

    NoticeCalls& m_calls;
    std::optional<Notification> m_waiting; ///< until the user has answered
    bool m_isAsking = false;
    bool m_isWanted = false; ///< what was handed over is still to be seen
    bool m_hasReported = false;
    std::shared_ptr<void> m_alive; ///< answers that come after its end are dropped
};

/// On a Mac no program warns of a low battery: the system does, always.
class MacPowerManagers final : public QObject, public PowerManagers
{
public:
    void ask(std::function<void(const QString& desktop)> answered) override;
};

} // namespace quindle
