#pragma once

#include <QString>
#include <QStringList>

namespace quindle {

/// Runs commands that the user has typed. Main thread only.
class CommandRunner
{
public:
    virtual ~CommandRunner() = default;

    /// Starts the program that `command` begins with, with the other words of it and `arguments`, without a
    /// shell, and leaves it to itself.
    /// False when it cannot be started; that it was started says nothing about how it ends.
    virtual bool run(const QString& command, const QStringList& arguments) = 0;
};

} // namespace quindle
