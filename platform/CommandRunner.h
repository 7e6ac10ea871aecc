#pragma once

#include <QString>
#include <QStringList>

namespace quindle {

/// Runs commands that the user has typed. Main thread only.
class CommandRunner
{
public:
    virtual ~CommandRunner() = default;

    /// Starts the program that `command` begins with, with its other words and `arguments`, without a shell,
    /// and does not wait for it. False when it cannot be started; a command that was started may still fail.
    virtual bool run(const QString& command, const QStringList& arguments) = 0;
};

} // namespace quindle
