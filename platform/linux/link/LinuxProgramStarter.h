#pragma once

#include "platform/MessageLink.h"

namespace quindle {

/// Starts a program with one end of a new pair of sockets, whose number it finds in its arguments as
/// "--link=N".
class LinuxProgramStarter final : public ProgramStarter
{
public:
    /// `program` is an absolute path.
    explicit LinuxProgramStarter(QByteArray program);

    std::unique_ptr<LinkedProgram> start() override;

private:
    QByteArray m_program;
};

} // namespace quindle
