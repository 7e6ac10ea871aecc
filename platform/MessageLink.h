#pragma once

#include <functional>
#include <memory>

#include <QByteArray>

namespace quindle {

/// Short messages to one other process of this program and from it, each whole or not at all, in order.
/// Nobody else can read or write on a link. Main thread only.
class MessageLink
{
public:
    /// Of one message, in bytes.
    static constexpr qsizetype longestMessage = 32768;

    virtual ~MessageLink() = default;

    /// Hands a message over without waiting for the other end to read it.
    /// False when it is lost: the other end has gone, has not read for so long that its messages fill their
    /// room, or the message is empty or too long.
    virtual bool send(const QByteArray& message) = 0;

    /// Sets what is called from the main loop with each message; those that came before wait for it.
    virtual void setReceiver(std::function<void(const QByteArray& message)> received) = 0;

    /// Sets what is called once from the main loop when the other end has gone, after its last message.
    /// It may destroy the link, as the receiver may.
    virtual void setClosed(std::function<void()> closed) = 0;
};

/// A program that this process has started, with a link to it. Destroying it closes the link and lets the
/// program run on.
class LinkedProgram
{
public:
    virtual ~LinkedProgram() = default;

    virtual MessageLink& link() = 0;

    /// Kills the program, whatever it is doing; does nothing when it has ended.
    virtual void kill() = 0;
};

/// Starts one program, as often as it is asked to.
class ProgramStarter
{
public:
    virtual ~ProgramStarter() = default;

    /// Null when the program is not there or cannot be run. A program that was started may still fail.
    virtual std::unique_ptr<LinkedProgram> start() = 0;
};

} // namespace quindle
