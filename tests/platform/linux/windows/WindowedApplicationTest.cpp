#include "platform/linux/windows/WindowedApplication.h"

#include <QGuiApplication>
#include <QWindow>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

TEST(WindowedApplication, ActivatesItsWindow)
{
    WindowedApplication application;
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
