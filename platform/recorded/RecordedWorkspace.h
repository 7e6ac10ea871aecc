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

/// Counts the requests and goes on running.
class RecordedApplication : public Application
{
public:
    void terminate() override { ++m_terminations; }
    void activateIgnoringOtherApplications() override { ++m_activations; }
    bool showsTranslucentWindows() const override { return false; }

    int terminations() const { return m_terminations; }
    int activations() const { return m_activations; }

private:
    int m_terminations = 0;
    int m_activations = 0;
};

} // namespace quindle
