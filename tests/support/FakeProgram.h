#pragma once

#include <memory>
#include <vector>

#include "platform/MessageLink.h"
#include "remote/WindowMessage.h"

namespace quindle {

/// What became of a program that was started.
struct ProgramRecord
{
    std::vector<WindowMessage> messages; ///< that it was sent
    bool takesMessages = true;
    bool isKilled = false;
    bool isLinked = true; ///< its link has not been closed by the starter
    std::function<void(const QByteArray&)> received;
    std::function<void()> closed;

    /// It sends a message.
    void say(const WindowMessage& message) { sayBytes(encoded(message)); }
    void say(WindowMessage::Kind kind, quint32 number = 0) { say({.kind = kind, .number = number}); }
    void sayBytes(const QByteArray& bytes)
    {
        const auto call = received; // which may close the link
        call(bytes);
    }

    /// It ends.
    void end()
    {
        const auto call = closed;
        call();
    }
};

class FakeProgram : public LinkedProgram, public MessageLink
{
public:
    explicit FakeProgram(std::shared_ptr<ProgramRecord> record)
        : m_record(std::move(record))
    {
    }
    ~FakeProgram() override { m_record->isLinked = false; }

    MessageLink& link() override { return *this; }
    void kill() override { m_record->isKilled = true; }

    bool send(const QByteArray& message) override
    {
        if (m_record->takesMessages)
            m_record->messages.push_back(decoded(message).value());
        return m_record->takesMessages;
    }
    void setReceiver(std::function<void(const QByteArray&)> received) override
    {
        m_record->received = std::move(received);
    }
    void setClosed(std::function<void()> closed) override { m_record->closed = std::move(closed); }

private:
    std::shared_ptr<ProgramRecord> m_record;
};

/// Starts programs that do what the test has them do.
class FakeProgramStarter : public ProgramStarter
{
public:
    bool isThere = true;
    std::vector<std::shared_ptr<ProgramRecord>> programs; ///< started so far

    std::unique_ptr<LinkedProgram> start() override
    {
        if (!isThere)
            return nullptr;
        programs.push_back(std::make_shared<ProgramRecord>());
        return std::make_unique<FakeProgram>(programs.back());
    }

    ProgramRecord& last() { return *programs.back(); }
};

} // namespace quindle
