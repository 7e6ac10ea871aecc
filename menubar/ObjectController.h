#pragma once

#include <QPointer>

#include "mac/QDMac.h"

namespace quindle {

/// Holds the computer that an interface shows.
class ObjectController
{
public:
    /// Sets the content object, which the controller does not own.
    void addObject(QDMac* mac) { m_content = mac; }

    /// Null before one was added, and after it was destroyed.
    QDMac* content() const { return m_content; }

private:
    QPointer<QDMac> m_content;
};

} // namespace quindle
