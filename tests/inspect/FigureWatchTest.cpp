#include "inspect/FigureWatch.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"

using namespace quindle;

namespace {

TEST(FigureWatch, TimersArePunctualWhileTheTitleShowsPassingFigures)
{
    FakePlatform computer;
    {
        FigureWatch watch(computer.runLoop);
        EXPECT_FALSE(computer.runLoop.isPunctual());
        watch.setTitleTemplate(QStringLiteral("%p%"));
        EXPECT_FALSE(computer.runLoop.isPunctual());
        watch.setTitleTemplate(QStringLiteral("%w W"));
        EXPECT_TRUE(computer.runLoop.isPunctual());
        watch.setTitleTemplate(QStringLiteral("%r"));
        EXPECT_TRUE(computer.runLoop.isPunctual());
        watch.setTitleTemplate(QStringLiteral("%t"));
        EXPECT_FALSE(computer.runLoop.isPunctual());
        watch.setTitleTemplate(QStringLiteral("%mA"));
    }
    EXPECT_FALSE(computer.runLoop.isPunctual());
}

} // namespace
