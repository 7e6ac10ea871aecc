#include "platform/linux/session/LinuxApplication.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

TEST(LinuxApplication, TerminatesOnceTheCallerHasReturned)
{
    LinuxApplication application;
    bool returned = false;
    QTimer::singleShot(0, qApp, [&] {
        application.terminate();
        returned = true;
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(returned);
}

} // namespace
