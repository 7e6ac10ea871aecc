#include "platform/linux/statusitem/LinuxStatusBar.h"

#include <utility>

#include "platform/linux/session/BusLink.h"

namespace quindle {

LinuxStatusBar::LinuxStatusBar(RunLoop& runLoop, StatusItemSurroundings surroundings)
    : m_runLoop(runLoop)
    , m_surroundings(std::move(surroundings))
{
}

std::unique_ptr<StatusItem> LinuxStatusBar::statusItemWithLength(double /*length*/)
{
    const QString name = QStringLiteral("quindle-status-item-%1").arg(++m_items);
    const QDBusConnection none{QString()};
    auto item = std::make_unique<LinuxStatusItem>(none, m_runLoop, m_surroundings);
    auto* link = new BusLink(QDBusConnection::SessionBus, name, BusLink::usualPause, item.get());
    QObject::connect(item.get(), &LinuxStatusItem::busAbused, link, &BusLink::drop);
    link->open([item = item.get()](const QDBusConnection& bus) { item->setBus(bus); },
               [item = item.get(), none] { item->setBus(none); });
    return item;
}

} // namespace quindle
