#pragma once

namespace quindle {

/// Ends the process with a line on standard error and exit status 1 when it is not destroyed in time: for a
/// part of the start in which a bus or file system may keep a call waiting for ever. There is one at a time.
class StartDeadline
{
public:
    explicit StartDeadline(unsigned seconds);
    ~StartDeadline();
    StartDeadline(const StartDeadline&) = delete;
    StartDeadline& operator=(const StartDeadline&) = delete;
};

} // namespace quindle
