#include "mac/XMLData.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

TEST(XMLData, EachDeliveryReplacesTheOneBefore)
{
    XMLData data(text("F5YX"));
    EXPECT_EQ(data.configCode(), std::nullopt);
    data.didStartElement(text("configCode"));
    data.foundCharacters(text("A "));
    data.foundCharacters(text("(x)"));
    EXPECT_EQ(data.configCode(), text("(x)"));
    data.foundCharacters(text("\n"));
    EXPECT_EQ(data.configCode(), text("\n"));
}

TEST(XMLData, OnlyTwoElementsAreTaken)
{
    XMLData data(text("F5YX"));
    data.foundCharacters(text("before any element"));
    for (const char* element : {"name", "configCode", "locale", "other", "Name", "x:name"}) {
        data.didStartElement(text(element));
        data.foundCharacters(text(element));
    }
    EXPECT_EQ(data.name(), text("name"));
    EXPECT_EQ(data.configCode(), text("configCode"));
    EXPECT_EQ(data.locale(), std::nullopt);
}

TEST(XMLDataDeathTest, NotWithoutASerialPart)
{
    EXPECT_DEATH(XMLData(), "part of the serial number");
}

} // namespace
