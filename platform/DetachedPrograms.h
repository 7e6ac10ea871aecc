#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Programs that are started and not waited for.
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

/// A program that is started with a text as its standard input, as often as there is one, and not waited for.
/// Main thread only.
class TextReceiver
{
public:
    virtual ~TextReceiver() = default;

    /// Whether there is such a program at the moment.
    virtual bool isInstalled() const = 0;

    /// Whether the one that was started last still runs; false where that cannot be found out.
    virtual bool isRunning() = 0;

    /// Starts it with `text`, which may be empty. Does not wait until it has read or ended, and the text
    /// reaches it even if this process ends at once. False when it cannot be started; a program that was
    /// started may still fail.
    virtual bool handOver(const QByteArray& text) = 0;
};

} // namespace quindle
