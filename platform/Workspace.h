#pragma once

#include <QString>

namespace quindle {

/// What the helper asks of the desktop. Main thread only.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Launches the application at exactly `path`: a program is run, a folder is opened. Does not wait; a
    /// failure is logged and otherwise silent.
    virtual void launchApplication(const QString& path) = 0;
};

} // namespace quindle
