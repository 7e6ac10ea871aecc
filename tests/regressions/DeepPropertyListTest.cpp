// A property list of 50,000 nested arrays overflowed the stack; one whose values share others was written out
// until memory ended.

#include <gtest/gtest.h>

#include "common/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QByteArray nestedXml(int depth)
{
    return "<plist>" + QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth) +
           "</plist>";
}

/// A binary list of arrays of which each has the next one `references` times; the last one is empty, or the
/// first one again.
QByteArray chainOfArrays(int length, int references, bool isCircle = false)
{
    QByteArray bytes("bplist00");
    QByteArray table;
    const auto append16 = [](QByteArray& to, int number) {
        to += static_cast<char>(number >> 8);
        to += static_cast<char>(number);
    };
    for (int index = 0; index < length; ++index) {
        append16(table, static_cast<int>(bytes.size()));
        const bool isLast = index + 1 == length;
        const int count = isLast && !isCircle ? 0 : references;
        bytes += static_cast<char>(0xa0 + count);
        for (int reference = 0; reference < count; ++reference)
            append16(bytes, isLast ? 0 : index + 1);
    }
    const auto tableOffset = static_cast<int>(bytes.size());
    bytes += table + QByteArray(6, '\0') + "\x02\x02" + QByteArray(6, '\0');
    append16(bytes, length);
    bytes += QByteArray(8 + 6, '\0');
    append16(bytes, tableOffset);
    return bytes;
}

TEST(DeepPropertyList, Xml)
{
    EXPECT_TRUE(propertyListFromBytes(nestedXml(512)).has_value());
    for (const int depth : {513, 50'000})
        EXPECT_FALSE(propertyListFromBytes(nestedXml(depth)).has_value()) << depth;
    EXPECT_FALSE(propertyListFromBytes("<plist>" + QByteArray("<array>").repeated(50'000)).has_value());
}

TEST(DeepPropertyList, Binary)
{
    EXPECT_TRUE(propertyListFromBytes(chainOfArrays(500, 1)).has_value());
    for (const int length : {513, 10'000})
        EXPECT_FALSE(propertyListFromBytes(chainOfArrays(length, 1)).has_value()) << length;
}

TEST(DeepPropertyList, SharedAndCircularValues)
{
    EXPECT_TRUE(propertyListFromBytes(chainOfArrays(10, 2)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(100, 2)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(8, 14)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(1, 1, true)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(3, 1, true)).has_value());
}

} // namespace
