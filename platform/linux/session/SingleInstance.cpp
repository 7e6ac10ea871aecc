#include "platform/linux/session/SingleInstance.h"

#include "platform/linux/display/DisplayKey.h"

namespace quindle {

namespace {

QString displayOfProcess()
{
    return displayKey({.wayland = qgetenv("WAYLAND_DISPLAY"),
                       .x11 = qgetenv("DISPLAY"),
                       .runtimeFolder = qgetenv("XDG_RUNTIME_DIR")});
}

} // namespace

SingleInstance::SingleInstance(const InstanceName& name)
    : m_busName(name)
    , m_files(instanceFileStems(name.file, displayOfProcess()))
{
}

StartAnswer SingleInstance::start()
{
    const auto onBus = m_busName.start();
    if (!onBus)
        return m_files.start();
    // For a start that finds no bus: it has to find this process.
    if (onBus->outcome == StartAnswer::Outcome::First)
        m_files.holdIfFree();
    return *onBus;
}

void SingleInstance::setShowRequested(const std::function<void()>& showRequested)
{
    m_busName.setShowRequested(showRequested);
    m_files.setShowRequested(showRequested);
}

} // namespace quindle
