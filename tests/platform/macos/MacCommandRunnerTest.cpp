#include "platform/macos/MacCommandRunner.h"

#include "tests/platform/CommandRunnerContract.h"

namespace quindle {

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, CommandRunnerContract, MacCommandRunner);

} // namespace quindle
