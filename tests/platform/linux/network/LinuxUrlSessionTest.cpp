#include "platform/linux/network/LinuxUrlSession.h"

#include <gtest/gtest.h>

#include "mac/ModelNameLookup.h"
#include "tests/platform/linux/network/HttpServer.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

int warnings = 0;

void countWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/)
{
    warnings += type == QtWarningMsg ? 1 : 0;
}

TEST(LinuxUrlSession, OnlyAConfiguredHostIsAsked)
{
    const HttpServer server;
    LinuxUrlSession session(QStringLiteral(QUINDLE_NETWORK_MODULE));
    FakeBundle bundle;
    const auto lookUp = [&] { return onlineModelText(QStringLiteral("F5YX"), bundle, session); };
    EXPECT_EQ(lookUp(), std::nullopt);
    bundle.info->insert(QStringLiteral("QDProductInformationHost"), QString());
    EXPECT_EQ(lookUp(), std::nullopt);
    EXPECT_EQ(session.contents(server.address("/seen")), QByteArray());
    bundle.info->insert(QStringLiteral("QDProductInformationHost"), server.host());
    EXPECT_EQ(lookUp(), QStringLiteral("(x)"));
    EXPECT_EQ(session.contents(server.address("/seen")), QByteArray("/sp/product?cc=F5YX&lang=en_US"));
}

TEST(LinuxUrlSession, TheModuleIsLoadedForTheFirstHostAndMissedOnce)
{
    const QtMessageHandler before = qInstallMessageHandler(countWarnings);
    LinuxUrlSession session(QStringLiteral("/nonexistent/network.so"));
    session.post(QStringLiteral("https:///path"), "x", {});
    EXPECT_EQ(session.contents(QStringLiteral("http:///path")), std::nullopt);
    EXPECT_EQ(warnings, 0);
    session.post(QStringLiteral("https://127.0.0.1:1/path"), "x", {});
    EXPECT_EQ(session.contents(QStringLiteral("http://127.0.0.1:1/path")), std::nullopt);
    EXPECT_EQ(warnings, 1);
    qInstallMessageHandler(before);
}

// The bundle may be replaced by another version's while the program runs.
TEST(LinuxUrlSession, AnotherVersionsModuleIsNotUsed)
{
    const HttpServer server;
    const QtMessageHandler before = qInstallMessageHandler(countWarnings);
    LinuxUrlSession session(QStringLiteral(QUINDLE_OTHER_NETWORK_MODULE));
    EXPECT_EQ(session.contents(server.address("/seen")), std::nullopt);
    EXPECT_EQ(session.contents(server.address("/seen")), std::nullopt);
    session.post(server.address("/"), "x", {});
    EXPECT_EQ(warnings, 1);
    qInstallMessageHandler(before);
}

} // namespace
