#include "platform/linux/session/StartDeadline.h"

#include <csignal>
#include <string_view>

#include <unistd.h>

#include "platform/linux/os/StandardError.h"

namespace quindle {

namespace {

void giveUp(int)
{
    constexpr std::string_view line =
        "quindle-helper: gave up: the session bus or a folder does not answer, so whether another one runs "
        "is not known\n";
    writeToStandardError(line.data(), line.size());
    ::_exit(1);
}

} // namespace

StartDeadline::StartDeadline(unsigned seconds)
{
    std::signal(SIGALRM, giveUp);
    ::alarm(seconds);
}

StartDeadline::~StartDeadline()
{
    ::alarm(0);
    std::signal(SIGALRM, SIG_DFL);
}

} // namespace quindle
