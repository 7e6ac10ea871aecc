#pragma once

#include "remote/WindowMessage.h"

namespace quindle {

class MessageLink;

/// The helper as its windows reach it.
class HelperEnd
{
public:
    /// The link must outlive it.
    explicit HelperEnd(MessageLink& link)
        : m_link(link)
    {
    }

    void send(const WindowMessage& message);

    /// The same for a message that is a number at most.
    void send(WindowMessage::Kind kind, quint32 number = 0) { send({.kind = kind, .number = number}); }

private:
    MessageLink& m_link;
};

} // namespace quindle
