#pragma once

#include <memory>

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include "platform/RateLimit.h"

class QDBusPendingCallWatcher;

namespace quindle {

class RunLoop;
class X11Display;

/// The desktop's font family. On X11 it comes from the settings manager, elsewhere or without one from the
/// settings portal, which is asked without waiting and not started for it. The answer is kept. Main thread
/// only.
class InterfaceFont final : public QObject
{
    Q_OBJECT

public:
    /// The display and the loop must live longer.
    InterfaceFont(X11Display& display, RunLoop& runLoop);
    ~InterfaceFont() override;

    /// The session bus from now on; one that is not connected is none.
    void setBus(const QDBusConnection& bus);

    /// To be called when text is drawn: asks if nobody has been asked since `forgetAnswer`.
    void need();

    /// The next `need` asks again; the previous answer stays until the new one arrives.
    void forgetAnswer();

    /// Empty while it is unknown.
    QString family() const { return m_family; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void settingChanged();

private:
    void askPortal();
    void take(const QString& fontName);

    X11Display& m_display;
    QDBusConnection m_bus{QString()};
    QString m_family;
    bool m_isAsked = false;
    RateLimit m_changes;
    std::unique_ptr<QDBusPendingCallWatcher> m_question;
};

} // namespace quindle
