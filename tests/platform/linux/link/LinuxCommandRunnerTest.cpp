#include "platform/linux/link/LinuxCommandRunner.h"

#include "tests/platform/CommandRunnerContract.h"

namespace quindle {

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, CommandRunnerContract, LinuxCommandRunner);

} // namespace quindle
