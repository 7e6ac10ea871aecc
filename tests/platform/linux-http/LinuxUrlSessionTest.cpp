#include "platform/linux/LinuxUrlSession.h"

#include <gtest/gtest.h>

#include "mac/ModelNameLookup.h"
#include "tests/platform/linux-http/HttpServer.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(LinuxUrlSession, OnlyAConfiguredHostIsAsked)
{
    const HttpServer server;
    LinuxUrlSession session{QString()};
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

} // namespace
