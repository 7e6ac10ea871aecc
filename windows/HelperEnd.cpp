#include "windows/HelperEnd.h"

#include "platform/MessageLink.h"

namespace quindle {

// A helper that has gone takes its windows with it, and one that does not read refreshes nothing.
void HelperEnd::send(const WindowMessage& message)
{
    m_link.send(encoded(message));
}

} // namespace quindle
