#include "windows/HelperEnd.h"

#include "platform/MessageLink.h"

namespace quindle {

// A helper that has gone takes its windows along, and one that does not read will not refresh anything.
void HelperEnd::tell(const WindowMessage& message)
{
    m_link.send(encoded(message));
}

} // namespace quindle
