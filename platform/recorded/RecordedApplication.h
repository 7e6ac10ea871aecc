#pragma once

#include "platform/Application.h"

namespace quindle {

/// Counts what it is asked for and goes on running.
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
