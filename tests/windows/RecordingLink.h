#pragma once

#include <utility>
#include <vector>

#include "platform/MessageLink.h"
#include "remote/WindowMessage.h"

namespace quindle {

/// Keeps what is sent to the helper.
class RecordingLink : public MessageLink
{
public:
    bool send(const QByteArray& message) override
    {
        m_messages.push_back(decoded(message).value());
        return true;
    }
    void setReceiver(std::function<void(const QByteArray&)>) override {}
    void setClosed(std::function<void()>) override {}

    /// Since the last call.
    std::vector<WindowMessage> told() { return std::exchange(m_messages, {}); }

private:
    std::vector<WindowMessage> m_messages;
};

} // namespace quindle
