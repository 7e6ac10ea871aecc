#pragma once

#include <QSet>

#include "platform/Workspace.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

class MacWorkspace : public Workspace
{
public:
    explicit MacWorkspace(OpenCalls& calls)
        : m_calls(calls)
    {
    }

    void launchApplication(const QString& path) override;

private:
    QString target(const QString& path);

    OpenCalls& m_calls;
    QSet<QString> m_failed;
};

} // namespace quindle
