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

/// The family that the desktop writes in. On X11 its settings manager says it, elsewhere, or where there is
/// none, the settings portal, which is asked without waiting and not started for it. The answer is kept. Main
/// thread only.
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

    /// The next `need` asks again; until the answer is there, the one before stays.
    void forgetAnswer();

    /// Empty while nobody has said it.
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
