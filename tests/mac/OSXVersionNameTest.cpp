#include "mac/OSXVersionName.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct VersionRow
{
    const char* text;
    const char* name;
};

TEST(OSXVersionName, Table)
{
    constexpr VersionRow rows[] = {
        {"10.14.6", "OS X"},
        {"10.13", "OS X"},
        {"10.12.6", "macOS Sierra"},
        {"10.11.6", "OS X El Capitan"},
        {"10.10.9", "OS X Yosemite"},
        {"10.9.5", "OS X Mavericks"},
        {"10.8", "Mac OS X Mountain Lion"},
        {"10.7", "Mac OS X Lion"},
        {"10.6.8", "Mac OS X Snow Leopard"},
        {"10.60", "Mac OS X Snow Leopard"},
        {"10.5.8", "OS X"},
        {"10.1", "OS X"},
        {"10.15.7", "OS X"},
        {"13.0", "OS X"},
        {"110.12", "macOS Sierra"},
        {"", "OS X"},
    };
    for (const VersionRow& row : rows)
        EXPECT_EQ(osxVersionName(QString::fromLatin1(row.text)), QString::fromLatin1(row.name)) << row.text;
}

TEST(ShortVersion, IsTheTextualFormOfWhatTheBundleStates)
{
    const std::pair<QVariant, const char*> rows[] = {
        {QStringLiteral("1.11.2"), "1.11.2"},
        {QStringLiteral(""), ""},
        {2, "2"},
        {1.5, "1.5"},
    };
    FakeBundle bundle;
    for (const auto& [stated, version] : rows) {
        bundle.info = QVariantMap{{QStringLiteral("CFBundleShortVersionString"), stated}};
        EXPECT_EQ(shortVersion(bundle), QString::fromLatin1(version)) << version;
    }
}

TEST(ShortVersion, IsNothingWhereItIsNotStated)
{
    FakeBundle bundle;
    bundle.info = QVariantMap{{QStringLiteral("CFBundleVersion"), QStringLiteral("123")}};
    EXPECT_EQ(shortVersion(bundle), std::nullopt);
    bundle.info.reset();
    EXPECT_EQ(shortVersion(bundle), std::nullopt);
}

} // namespace
