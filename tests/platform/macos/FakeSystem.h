#pragma once

#include <map>
#include <utility>

#include "platform/macos/SystemCalls.h"

// A Mac's system in memory, as the adapters would pass it on.
namespace quindle {

class FakeRegistryCalls : public RegistryCalls
{
public:
    std::map<QString, QVariantMap> entries;
    std::map<quint32, int> held; ///< how often each number is held

    quint32 findName(const QString& name) override
    {
        const auto found = entries.find(name);
        if (found == entries.end())
            return 0;
        // As in the system: one entry, one number.
        const auto number = static_cast<quint32>(std::distance(entries.begin(), found)) + 100;
        ++held[number];
        m_names[number] = name;
        return number;
    }
    quint32 findClass(const QString& className) override { return findName(className); }
    QVariant property(quint32 entry, const QString& key) override { return properties(entry).value(key); }
    QVariantMap properties(quint32 entry) override
    {
        const auto found = entries.find(m_names.at(entry));
        return found == entries.end() ? QVariantMap() : found->second;
    }
    IOStatus release(quint32 entry) override
    {
        --held.at(entry);
        return kIOReturnSuccess;
    }

private:
    std::map<quint32, QString> m_names;
};

class FakePowerCalls : public PowerCalls
{
public:
    std::optional<std::vector<QVariantMap>> listed{std::in_place};
    QVariantMap details;
    std::function<void()> changed;
    int observed = 0;
    bool announces = true;

    std::optional<std::vector<QVariantMap>> sources() override { return listed; }
    QVariantMap adapter() override { return details; }
    bool observe(std::function<void()> observer) override
    {
        ++observed;
        changed = std::move(observer);
        return announces;
    }
};

/// What all processes share: the domains that are there.
class FakeDomains
{
public:
    struct Domain
    {
        QVariantMap values;
        int writes = 0;
    };
    std::map<QString, Domain> domains;
    QString refused;

    std::unique_ptr<DefaultsCalls> open(const QString& name)
    {
        return name == refused ? nullptr : std::make_unique<Calls>(domains[name]);
    }

private:
    class Calls : public DefaultsCalls
    {
    public:
        explicit Calls(Domain& domain)
            : m_domain(domain)
        {
        }
        QVariant object(const QString& key) const override { return m_domain.values.value(key); }
        void setObject(const QString& key, const QVariant& value) override
        {
            ++m_domain.writes;
            m_domain.values.insert(key, value);
        }
        QVariantMap domain() const override { return m_domain.values; }

    private:
        Domain& m_domain;
    };
};

/// The daemon between processes: delivers everything to everybody, later.
class FakeNotificationCalls : public NotificationCalls
{
public:
    std::map<QString, std::function<void(const QString&)>> observers;
    std::vector<std::pair<QString, QString>> posted;
    int observed = 0;

    void observe(const QString& name, std::function<void(const QString& sender)> heard) override
    {
        ++observed;
        observers[name] = std::move(heard);
    }
    void post(const QString& name, const QString& sender) override { posted.emplace_back(name, sender); }

    void deliver(const QString& name, const QString& sender) { observers.at(name)(sender); }
};

/// The notification center, which answers when the test says so.
class FakeNoticeCalls : public NoticeCalls
{
public:
    PermissionAnswered permission;
    int leavesAsked = 0;
    std::vector<Notification> shown;
    Answered answered;
    int withdrawals = 0;

    void askPermission(PermissionAnswered answer) override
    {
        ++leavesAsked;
        permission = std::move(answer);
    }
    void show(const Notification& notification, Answered answer) override
    {
        shown.push_back(notification);
        answered = std::move(answer);
    }
    void withdraw() override { ++withdrawals; }
};

class FakeTimerCalls : public TimerCalls
{
public:
    struct Running
    {
        double interval;
        double tolerance;
        std::function<void()> fire;
    };
    std::vector<std::shared_ptr<Running>> started;

    std::unique_ptr<SystemTimer> start(double interval, double tolerance, std::function<void()> fire) override
    {
        started.push_back(std::make_shared<Running>(Running{interval, tolerance, std::move(fire)}));
        return std::make_unique<TimerInLoop>(started.back());
    }

    void tick(std::size_t timer)
    {
        if (const auto fire = started.at(timer)->fire)
            fire();
    }
    bool isStopped(std::size_t timer) const { return !started.at(timer)->fire; }

private:
    class TimerInLoop : public SystemTimer
    {
    public:
        explicit TimerInLoop(std::shared_ptr<Running> running)
            : m_running(std::move(running))
        {
        }
        ~TimerInLoop() override { m_running->fire = {}; }
        void setTolerance(double tolerance) override { m_running->tolerance = tolerance; }

    private:
        std::shared_ptr<Running> m_running;
    };
};

class FakeLoginCalls : public LoginCalls
{
public:
    bool isRegistered = false;
    QString fault;
    int changes = 0;

    bool isOn() override { return isRegistered; }
    QString setOn(bool isOn) override
    {
        ++changes;
        if (fault.isEmpty())
            isRegistered = isOn;
        return fault;
    }
};

class FakeOpenCalls : public OpenCalls
{
public:
    QStringList paths;
    QStringList opened;
    bool succeeds = true;

    bool exists(const QString& path) override { return paths.contains(path); }
    bool open(const QString& path) override
    {
        opened.append(path);
        return succeeds;
    }
};

class FakeHttpCalls : public HttpCalls
{
public:
    QStringList asked;
    std::optional<HttpAnswer> answer;
    std::function<void(const HttpAnswer&)> answered;

    void post(const QString& url, const QByteArray& /*body*/, double /*patience*/,
              std::function<void(const HttpAnswer&)> receive) override
    {
        asked.append(url);
        answered = std::move(receive);
    }
    std::optional<HttpAnswer> get(const QString& url, double /*patience*/) override
    {
        asked.append(url);
        return answer;
    }
};

/// What the bar shows, kept beyond the item's end.
struct FakeBarItem
{
    QString title;
    QString image;
    QSizeF imageSize;
    double fontSize = 0;
    QString toolTip;
    int changes = 0; ///< of anything but the menu
    std::vector<MenuEntry> entries;
    std::function<void(int)> chosen;
    int updates = 0;
};

class FakeStatusItemCalls : public StatusItemCalls
{
public:
    explicit FakeStatusItemCalls(FakeBarItem& item)
        : m_item(item)
    {
    }
    void setTitle(const QString& title) override
    {
        ++m_item.changes;
        m_item.title = title;
    }
    void setImage(const QString& file, QSizeF size) override
    {
        ++m_item.changes;
        m_item.image = file;
        m_item.imageSize = size;
    }
    void setFontSize(double points) override
    {
        ++m_item.changes;
        m_item.fontSize = points;
    }
    void setToolTip(const QString& text) override
    {
        ++m_item.changes;
        m_item.toolTip = text;
    }
    void setMenu(const std::vector<MenuEntry>& entries, std::function<void(int id)> chosen) override
    {
        m_item.entries = entries;
        m_item.chosen = std::move(chosen);
    }
    void updateEntry(const MenuEntry& entry) override
    {
        ++m_item.updates;
        m_item.entries.at(static_cast<std::size_t>(entry.id) - 1) = entry;
    }

private:
    FakeBarItem& m_item;
};

} // namespace quindle
