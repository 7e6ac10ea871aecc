#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "platform/linux/session/LinuxApplication.h"

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

TEST(LinuxApplication, ActivatesItsWindow)
{
    LinuxApplication application;
    application.activateIgnoringOtherApplications();
    QWindow first;
    first.show();
    QWindow second;
    second.show();
    first.requestActivate();
    QCoreApplication::processEvents();
    second.hide();
    application.activateIgnoringOtherApplications();
    QCoreApplication::processEvents();
    EXPECT_EQ(QGuiApplication::focusWindow(), &first);
}

} // namespace
