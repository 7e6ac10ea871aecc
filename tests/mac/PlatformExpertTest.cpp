#include "mac/PlatformExpert.h"

#include <gtest/gtest.h>

#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString expert()
{
    return QStringLiteral("IOPlatformExpertDevice");
}

TEST(PlatformExpert, TheModelIsTheBytesUpToTheFirstNul)
{
    const std::pair<QByteArray, std::optional<QString>> rows[] = {
        {QByteArrayLiteral("MacBookPro11,1\0"), QStringLiteral("MacBookPro11,1")},
        {QByteArrayLiteral("MacBookPro11,1"), QStringLiteral("MacBookPro11,1")},
        {QByteArrayLiteral("Mac\0BookPro"), QStringLiteral("Mac")},
        {QByteArrayLiteral("\0"), QStringLiteral("")},
        {QByteArrayLiteral("M\xc3\xa4\x63"), QStringLiteral("Mäc")},
        {QByteArrayLiteral("Mac\0\xff"), QStringLiteral("Mac")}, // what follows the NUL is not looked at
        {QByteArrayLiteral("M\xe4\x63"), std::nullopt},          // not UTF-8
    };
    FakeRegistry registry;
    for (const auto& [bytes, model] : rows) {
        registry.entries[expert()] = {{QStringLiteral("model"), bytes}};
        EXPECT_EQ(readModelIdentifier(registry), model) << bytes.toHex().toStdString();
    }
}

TEST(PlatformExpert, AnEmptyModelIsThere)
{
    FakeRegistry registry;
    registry.entries[expert()] = {{QStringLiteral("model"), QByteArrayLiteral("")}};
    const auto model = readModelIdentifier(registry);
    ASSERT_TRUE(model);
    EXPECT_FALSE(model->isNull());
}

TEST(PlatformExpert, TheSerialNumberIsTheText)
{
    FakeRegistry registry;
    for (const char* serial : {"C02MN1TXF5YW", "", " C02 "}) {
        registry.entries[expert()] = {
            {QStringLiteral("IOPlatformSerialNumber"), QString::fromLatin1(serial)}};
        EXPECT_EQ(readSerialNumber(registry), QString::fromLatin1(serial));
    }
}

TEST(PlatformExpert, NothingWithoutEntryOrProperty)
{
    FakeRegistry registry;
    EXPECT_EQ(readModelIdentifier(registry), std::nullopt);
    EXPECT_EQ(readSerialNumber(registry), std::nullopt);
    registry.entries[expert()] = {{QStringLiteral("board-id"), QByteArrayLiteral("Mac-1")}};
    EXPECT_EQ(readModelIdentifier(registry), std::nullopt);
    EXPECT_EQ(readSerialNumber(registry), std::nullopt);
}

TEST(PlatformExpert, EachReadGivesTheEntryBack)
{
    FakeRegistry registry;
    registry.entries[expert()] = {{QStringLiteral("model"), QByteArrayLiteral("MacBookAir4,2\0")}};
    for (int read = 1; read <= 2; ++read) {
        readModelIdentifier(registry);
        readSerialNumber(registry);
        EXPECT_TRUE(registry.openHandles.isEmpty());
        EXPECT_EQ(registry.reads.size(), 2 * read);
    }
}

TEST(PlatformExpert, ValuesOfAnotherTypeAreFatal)
{
    FakeRegistry registry;
    registry.entries[expert()] = {{QStringLiteral("model"), QStringLiteral("MacBookAir4,2")},
                                  {QStringLiteral("IOPlatformSerialNumber"), QByteArrayLiteral("C02")}};
    EXPECT_DEATH(readModelIdentifier(registry), "model has an unexpected type");
    EXPECT_DEATH(readSerialNumber(registry), "IOPlatformSerialNumber has an unexpected type");
}

} // namespace
