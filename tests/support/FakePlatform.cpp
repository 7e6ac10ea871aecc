#include "tests/support/FakePlatform.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace quindle {

RegistryObject FakeRegistry::serviceMatchingName(const QString& name)
{
    ++calls;
    if (!entries.contains(name))
        return 0;
    openHandles.insert(m_nextHandle, name);
    return m_nextHandle++;
}

RegistryObject FakeRegistry::serviceMatchingClass(const QString& className)
{
    return serviceMatchingName(className);
}

QVariant FakeRegistry::property(RegistryObject object, const QString& key)
{
    reads.append(key);
    if (onRead)
        onRead(key);
    return properties(object).value(key);
}

QVariantMap FakeRegistry::properties(RegistryObject object)
{
    ++calls;
    const auto handle = openHandles.constFind(object);
    if (handle == openHandles.cend())
        return {};
    const auto entry = entries.find(*handle);
    return entry == entries.end() ? QVariantMap() : entry->second;
}

std::optional<bool> FakeRegistry::isMatched(const QString& name)
{
    return tellsWhetherMatched ? std::optional(entries.contains(name)) : std::nullopt;
}

IOStatus FakeRegistry::release(RegistryObject object)
{
    ++calls;
    return openHandles.remove(object) ? kIOReturnSuccess : notOpen;
}

std::optional<QVariantMap> FakePowerSources::externalAdapterDetails()
{
    ++calls;
    return adapter;
}

std::optional<int> FakePowerSources::chargeLimit()
{
    ++calls;
    return limit;
}

QList<PeripheralBattery> FakePowerSources::peripherals()
{
    ++calls;
    return devices;
}

std::optional<int> FakePowerSources::sourceCount()
{
    ++calls;
    if (!sources)
        return std::nullopt;
    return static_cast<int>(sources->size());
}

std::optional<QVariantMap> FakePowerSources::description(int source)
{
    ++calls;
    return sources->at(static_cast<std::size_t>(source));
}

void MemoryUserDefaults::setObject(const QString& key, const QVariant& value)
{
    writes.append(key);
    values.insert(key, value);
}

void FakeClock::advance(double seconds)
{
    time = time.addMSecs(std::llround(seconds * 1000.0));
}

QString FakeHost::localizedName() const
{
    ++calls;
    return name;
}

std::optional<QVariantMap> FakeSystemFiles::propertyList(const QString& path) const
{
    ++calls;
    const auto file = files.find(path);
    if (file == files.end())
        return std::nullopt;
    return file->second;
}

std::shared_ptr<Timer> FakeRunLoop::scheduleRepeatingTimer(double interval, double tolerance,
                                                           std::function<void()> fire)
{
    auto timer = std::make_shared<FakeTimer>();
    timer->interval = interval;
    timer->tolerance = tolerance;
    timer->due = m_time + interval;
    timer->fire = std::move(fire);
    timers.push_back(timer);
    return timer;
}

Punctuality FakeRunLoop::keepPunctual()
{
    return m_punctuality;
}

void FakeRunLoop::advance(double seconds)
{
    const double until = m_time + seconds;
    while (const auto timer = nextTimer(until)) {
        moveTo(timer->due);
        timer->due += timer->interval;
        timer->fire();
    }
    moveTo(until);
}

std::shared_ptr<FakeRunLoop::FakeTimer> FakeRunLoop::nextTimer(double until) const
{
    std::shared_ptr<FakeTimer> next;
    for (const auto& timer : timers)
        if (timer->valid && timer->due <= until && (!next || timer->due < next->due))
            next = timer;
    return next;
}

void FakeRunLoop::moveTo(double time)
{
    m_clock.advance(time - m_time);
    m_time = time;
}

std::shared_ptr<Image> FakeStatusItem::image() const
{
    return m_record->imagesSet.empty() ? nullptr : m_record->imagesSet.back();
}

std::unique_ptr<StatusItem> FakeStatusBar::statusItemWithLength(double length)
{
    items.push_back(std::make_shared<StatusItemRecord>());
    items.back()->length = length;
    return std::make_unique<FakeStatusItem>(items.back());
}

void FakeUrlSession::post(const QString& url, const QByteArray& body,
                          std::function<void(int status, const QByteArray& body)> /*answered*/)
{
    posted.append(url);
    bodies.push_back(body);
}

std::optional<QByteArray> FakeUrlSession::contents(const QString& url)
{
    asked.append(url);
    const auto answer = answers.find(url);
    if (answer == answers.end())
        return std::nullopt;
    return answer->second;
}

std::optional<std::vector<LoginItems::Item>> FakeLoginItems::snapshot()
{
    if (!urls || snapshotsLeft-- <= 0)
        return std::nullopt;
    std::vector<Item> items(static_cast<std::size_t>(urls->size()));
    std::iota(items.begin(), items.end(), 0);
    return items;
}

std::optional<QString> FakeLoginItems::resolve(Item item)
{
    const QString url = urls->value(item);
    return url.isEmpty() ? std::nullopt : std::optional(url);
}

void FakeLoginItems::setEnabled(const QString& identifier, bool isEnabled)
{
    enabled[identifier] = isEnabled;
    switched.emplace_back(identifier, isEnabled);
}

void FakeDistributedNotificationCenter::addObserver(const QString& name,
                                                    NotificationCenter::Observer observer)
{
    m_center.addObserver(name, std::move(observer));
}

void FakeDistributedNotificationCenter::post(const QString& name)
{
    posted.append(name);
    m_center.post(name);
}

void FakeWorkspaceNotifications::addWillSleepObserver(NotificationCenter::Observer observer)
{
    willSleep.push_back(std::move(observer));
}

void FakeWorkspaceNotifications::addDidWakeObserver(NotificationCenter::Observer observer)
{
    didWake.push_back(std::move(observer));
}

void FakeWorkspaceNotifications::sleep() const
{
    for (const auto& observer : willSleep)
        observer();
}

void FakeWorkspaceNotifications::wake() const
{
    for (const auto& observer : didWake)
        observer();
}

void FakePlatform::setComputer(const QString& model, const QString& serial)
{
    expert().insert(QStringLiteral("model"), model.toUtf8() + '\0');
    expert().insert(QStringLiteral("IOPlatformSerialNumber"), serial);
}

} // namespace quindle
