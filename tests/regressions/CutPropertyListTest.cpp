// An XML property list that ended before its closing tag was read as a whole one.

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(CutPropertyList, EveryBeginningIsNoList)
{
    const QByteArray whole =
        xmlPropertyList(QVariantMap{{QStringLiteral("a"), QVariantList{1, 2.5, true}},
                                    {QStringLiteral("b"), QStringLiteral("text & more")}});
    ASSERT_TRUE(propertyListFromBytes(whole).has_value());
    const QByteArray closing = "</plist>";
    const qsizetype end = whole.lastIndexOf(closing) + closing.size();
    ASSERT_TRUE(propertyListFromBytes(whole.left(end)).has_value());
    for (qsizetype size = 0; size < end; ++size)
        EXPECT_FALSE(propertyListFromBytes(whole.left(size)).has_value()) << size;
}

} // namespace
