#pragma once

#include <functional>

#include "platform/linux/session/InstanceBusName.h"
#include "platform/linux/session/InstanceFiles.h"

namespace quindle {

/// Makes sure that one process of a program runs for each session bus, because items are offered on a bus;
/// where there is none, for each display. Main thread only.
///
/// A name on the bus belongs to one process only, cannot be taken from outside the session, and needs no
/// folder. The files are taken too where possible, so that a start without a bus finds the process that waits
/// for one.
class SingleInstance
{
public:
    explicit SingleInstance(const InstanceName& name);

    /// Whether this process is to run. Needs a QCoreApplication.
    StartAnswer start();

    /// Sets what the request of another start does; requests arrive once the main loop runs.
    void setShowRequested(const std::function<void()>& showRequested);

    /// Sets what happens when a bus appears on which another process has the name already.
    void setTakenByAnother(std::function<void()> taken) { m_busName.setTakenByAnother(std::move(taken)); }

private:
    InstanceBusName m_busName;
    InstanceFiles m_files;
};

} // namespace quindle
