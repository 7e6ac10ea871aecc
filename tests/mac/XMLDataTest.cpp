#include "mac/XMLData.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

TEST(XMLData, EachDeliveryReplacesTheOneBefore)
{
    XMLData data(latin1("F5YX"));
    EXPECT_EQ(data.configCode(), std::nullopt);
    data.didStartElement(latin1("configCode"));
    data.foundCharacters(latin1("A "));
    data.foundCharacters(latin1("(x)"));
    EXPECT_EQ(data.configCode(), latin1("(x)"));
    data.foundCharacters(latin1("\n"));
    EXPECT_EQ(data.configCode(), latin1("\n"));
}

TEST(XMLData, OnlyTwoElementsAreTaken)
{
    XMLData data(latin1("F5YX"));
    data.foundCharacters(latin1("before any element"));
    for (const char* element : {"name", "configCode", "locale", "other", "Name", "x:name"}) {
        data.didStartElement(latin1(element));
        data.foundCharacters(latin1(element));
    }
    EXPECT_EQ(data.name(), latin1("name"));
    EXPECT_EQ(data.configCode(), latin1("configCode"));
    EXPECT_EQ(data.locale(), std::nullopt);
}

TEST(XMLDataDeathTest, NotWithoutASerialPart)
{
    EXPECT_DEATH(XMLData(), "part of the serial number");
}

} // namespace
