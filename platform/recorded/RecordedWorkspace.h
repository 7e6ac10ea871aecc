#pragma once

#include <utility>

#include <QStringList>

#include "platform/Workspace.h"

namespace quindle {

/// Launches nothing and keeps the paths.
class RecordedWorkspace : public Workspace
{
public:
    void launchApplication(const QString& path) override { m_launched.append(path); }

    /// Every path since the last call, in order.
    QStringList takeLaunched() { return std::exchange(m_launched, {}); }

private:
    QStringList m_launched;
};

} // namespace quindle
