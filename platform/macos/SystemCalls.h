#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QSizeF>
#include <QString>
#include <QVariantMap>

#include "platform/IORegistry.h"
#include "platform/Notifier.h"

/// What the back end asks of the system, in plain values. The adapters (*.mm) convert and forward, and decide
/// nothing; the users of these classes decide, and are tested with fakes. Main thread only.
namespace quindle {

class RegistryCalls
{
public:
    virtual ~RegistryCalls() = default;

    /// The system's own number of the first entry of that name or class; 0 for none. The same entry may have
    /// the same number again, which is to be released as often as it was given.
    virtual quint32 findName(const QString& name) = 0;
    virtual quint32 findClass(const QString& className) = 0;

    virtual QVariant property(quint32 entry, const QString& key) = 0;
    virtual QVariantMap properties(quint32 entry) = 0;
    virtual IOStatus release(quint32 entry) = 0;
};

class PowerCalls
{
public:
    virtual ~PowerCalls() = default;

    /// One dictionary for each source, empty where it cannot be described; nothing when the service cannot be
    /// asked.
    virtual std::optional<std::vector<QVariantMap>> sources() = 0;

    /// Empty without an adapter.
    virtual QVariantMap adapter() = 0;

    /// Calls `changed` from the main loop for each change that is announced; false when none will be.
    virtual bool observe(std::function<void()> changed) = 0;
};

/// One domain of the user's defaults.
class DefaultsCalls
{
public:
    virtual ~DefaultsCalls() = default;

    virtual QVariant object(const QString& key) const = 0;
    virtual void setObject(const QString& key, const QVariant& value) = 0;

    /// What the domain itself holds, without what all applications share.
    virtual QVariantMap domain() const = 0;
};

/// Notifications between processes. `sender` is any text that goes along.
class NotificationCalls
{
public:
    virtual ~NotificationCalls() = default;

    /// Calls `heard` on the main thread for each that arrives, those of this process included.
    virtual void observe(const QString& name, std::function<void(const QString& sender)> heard) = 0;

    virtual void post(const QString& name, const QString& sender) = 0;
};

/// What the system shows the user, one notification at a time.
class NoticeCalls
{
public:
    using PermissionAnswered = std::function<void(bool isGranted, const QString& fault)>;
    using Answered = std::function<void(const QString& fault)>; ///< empty for success

    virtual ~NoticeCalls() = default;

    /// Asks whether anything may be shown, the first time the user; calls `answered` later on the main
    /// thread.
    virtual void askPermission(PermissionAnswered answered) = 0;

    /// Shows it instead of the one before, and calls `answered` later on the main thread.
    virtual void show(const Notification& notification, Answered answered) = 0;

    /// Takes back what is shown or is to be.
    virtual void withdraw() = 0;
};

/// One repeating timer of the system; destroying it stops it.
class SystemTimer
{
public:
    virtual ~SystemTimer() = default;

    /// From now on ticks are at most this many seconds late. One that is overdue comes at once.
    virtual void setTolerance(double tolerance) = 0;
};

class TimerCalls
{
public:
    virtual ~TimerCalls() = default;

    virtual std::unique_ptr<SystemTimer> start(double interval, double tolerance,
                                               std::function<void()> fire) = 0;
};

class LoginCalls
{
public:
    virtual ~LoginCalls() = default;

    /// Whether this application is started at login.
    virtual bool isOn() = 0;

    /// What went wrong; empty for success.
    virtual QString setOn(bool isOn) = 0;
};

class OpenCalls
{
public:
    virtual ~OpenCalls() = default;

    virtual bool exists(const QString& path) = 0;

    /// Launches an application, opens a folder or a file; false when that fails.
    virtual bool open(const QString& path) = 0;
};

struct HttpAnswer
{
    int status = 0;
    QByteArray body;
};

class HttpCalls
{
public:
    virtual ~HttpCalls() = default;

    /// Calls `answered` on the main thread with a complete answer, and not at all without one.
    virtual void post(const QString& url, const QByteArray& body, double patience,
                      std::function<void(const HttpAnswer&)> answered) = 0;

    /// Waits for it, `patience` seconds at most.
    virtual std::optional<HttpAnswer> get(const QString& url, double patience) = 0;
};

/// One row of the item's menu as the system shows it.
struct MenuEntry
{
    int id = 0;     ///< that of StatusMenu
    int parent = 0; ///< the id of the row whose submenu it is in; 0 for none
    QString title{};
    bool isSeparator = false;
    bool isEnabled = false;
    bool isHidden = false;

    bool operator==(const MenuEntry&) const = default;
};

/// One item in the system's status bar; destroying it takes the item out.
class StatusItemCalls
{
public:
    virtual ~StatusItemCalls() = default;

    virtual void setTitle(const QString& title) = 0;

    /// The picture in a file, drawn in the bar's text colour. No picture for an empty path and for a file
    /// that is not a picture; its own size for an empty one.
    virtual void setImage(const QString& file, QSizeF size) = 0;
    virtual void setFontSize(double points) = 0;
    virtual void setToolTip(const QString& text) = 0;

    /// Replaces the menu; `chosen` is called with the id of the row.
    virtual void setMenu(const std::vector<MenuEntry>& entries, std::function<void(int id)> chosen) = 0;

    /// Brings one row of the menu up to date; unknown ids are ignored.
    virtual void updateEntry(const MenuEntry& entry) = 0;
};

} // namespace quindle
