#pragma once

#include <QByteArray>

namespace quindle {

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
