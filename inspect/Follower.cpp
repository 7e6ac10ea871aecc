#include "inspect/Follower.h"

#include <utility>

#include "inspect/BarLines.h"
#include "inspect/BarState.h"
#include "inspect/Computer.h"
#include "inspect/JsonState.h"

namespace quindle {

Follower::Follower(Computer& computer, bool isDemo, BarFormat format, Write write)
    : m_computer(computer)
    , m_format(format)
    , m_write(std::move(write))
    , m_inspection(computer, isDemo)
    , m_figureWatch(computer.platform().runLoop)
{
    HelperAppDelegate& delegate = m_inspection.delegate();
    // The launch has refreshed the item already, before anything could be connected to it.
    writeIfChanged();
    QObject::connect(&delegate, &HelperAppDelegate::statusItemRefreshed, &delegate,
                     [this] { writeIfChanged(); });
    m_computer.playInTime(delegate);
}

void Follower::writeIfChanged()
{
    // Each time: another program may have changed the template.
    m_figureWatch.setTitleTemplate(m_inspection.preferences().customStatusBar());
    const RecentEvents recent = m_computer.takeEvents(); // otherwise they pile up
    QByteArray line = barLine(m_format, barState(m_inspection.delegate(), recent.toolTip));
    // Bars redraw for each line, so a state that looks the same is not printed again.
    if (line == m_lastLine)
        return;
    m_write((m_lastLine ? barSeparator(m_format) : barHeader(m_format)) + line + '\n');
    m_lastLine = std::move(line);
}

} // namespace quindle
