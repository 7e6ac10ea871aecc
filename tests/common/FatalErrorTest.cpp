#include <gtest/gtest.h>

#include "common/FatalError.h"
#include "common/Paths.h"

using namespace quindle;

namespace {

TEST(FatalErrorDeathTest, WritesOneLineAndAborts)
{
    EXPECT_EXIT(fatalError(u"it is °broken"), testing::KilledBySignal(SIGABRT),
                "^quindle: fatal: it is °broken\n$");
    EXPECT_DEATH(fatalError(u"/home/a\nb: broken"), "^quindle: fatal: /home/a b: broken\n$");
}

TEST(FatalErrorDeathTest, NamesAFileByItsBytes)
{
    EXPECT_DEATH(fatalError(pathText("/home/caf\xe9: broken")), "fatal: /home/caf\xe9: broken");
}

} // namespace
