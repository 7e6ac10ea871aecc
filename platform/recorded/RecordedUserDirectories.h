#pragma once

#include "platform/UserDirectories.h"
#include "platform/recorded/RecordedComputer.h"

namespace quindle {

class RecordedUserDirectories : public UserDirectories
{
public:
    explicit RecordedUserDirectories(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    QStringList applicationSupportDirectories() const override
    {
        return m_computer.applicationSupportDirectories();
    }

private:
    const RecordedComputer& m_computer;
};

} // namespace quindle
