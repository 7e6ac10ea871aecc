// A property list of 50,000 nested arrays overflowed the stack; one whose values share others was written out
// until memory ran out.

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QByteArray nestedXml(int depth)
{
    return "<plist>" + QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth) +
           "</plist>";
}

QByteArray arrayOf(int reference, int times)
{
    return static_cast<char>(0xa0 + times) + bigEndian(static_cast<quint64>(reference), 2).repeated(times);
}

/// Arrays that each hold the next one that many times; the last one holds `end`, or is empty.
QByteArray chainOfArrays(int length, int times, int end = -1)
{
    QByteArrayList arrays;
    for (int next = 1; next < length; ++next)
        arrays += arrayOf(next, times);
    return binaryPropertyList(arrays << (end < 0 ? QByteArray("\xa0") : arrayOf(end, times)), 2);
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
    EXPECT_TRUE(propertyListFromBytes(chainOfArrays(512, 1)).has_value());
    for (const int length : {513, 10'000})
        EXPECT_FALSE(propertyListFromBytes(chainOfArrays(length, 1)).has_value()) << length;
}

TEST(DeepPropertyList, SharedValues)
{
    EXPECT_TRUE(propertyListFromBytes(chainOfArrays(10, 2)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(100, 2)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(8, 14)).has_value());
}

TEST(DeepPropertyList, ValuesInThemselves)
{
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(1, 1, 0)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(3, 1, 0)).has_value());
    EXPECT_FALSE(propertyListFromBytes(chainOfArrays(3, 14, 1)).has_value());
}

// Each array is read when the one in it is known already, so that reading them never goes deep.
TEST(DeepPropertyList, DeepByValuesReadBefore)
{
    const auto stair = [](int steps) {
        QByteArray root = "\xaf\x11" + bigEndian(static_cast<quint64>(steps), 2);
        QByteArrayList objects{root, "\xa0"};
        for (int step = 1; step <= steps; ++step) {
            objects[0] += bigEndian(static_cast<quint64>(step), 2);
            objects += arrayOf(step, 1);
        }
        return binaryPropertyList(objects, 2);
    };
    EXPECT_TRUE(propertyListFromBytes(stair(511)).has_value());
    EXPECT_FALSE(propertyListFromBytes(stair(512)).has_value());
}

// 1 MB turned into 300 MB and more of text, and more into text without end.
TEST(DeepPropertyList, SharedTexts)
{
    const auto list = [](int length, int times) {
        return binaryPropertyList(
            {"\xaf\x12" + bigEndian(static_cast<quint64>(times), 4) + QByteArray("\1").repeated(times),
             "\x5f\x12" + bigEndian(static_cast<quint64>(length), 4) + QByteArray("x").repeated(length)});
    };
    EXPECT_TRUE(propertyListFromBytes(list(10'000, 1000)).has_value());
    EXPECT_FALSE(propertyListFromBytes(list(1'000'000, 10'000)).has_value());
}

// Many arrays that lie on each other in the file hold more than the file does.
TEST(DeepPropertyList, OverlappingArrays)
{
    constexpr int count = 3000;
    QByteArray bytes = "bplist00\xaf\x11" + bigEndian(count, 2);
    for (int index = 1; index <= count; ++index)
        bytes += bigEndian(static_cast<quint64>(index), 2);
    const auto inner = static_cast<quint64>(bytes.size());
    bytes += "\xaf\x11" + bigEndian(count, 2) + bigEndian(count + 1, 2).repeated(count) + "\x09";
    const auto offsetTable = static_cast<quint64>(bytes.size());
    bytes += bigEndian(8, 4) + bigEndian(inner, 4).repeated(count) + bigEndian(offsetTable - 1, 4);
    bytes += QByteArray(6, '\0') + "\x04\x02" + bigEndian(count + 2, 8) + bigEndian(0, 8) +
             bigEndian(offsetTable, 8);
    EXPECT_FALSE(propertyListFromBytes(bytes).has_value());
}

} // namespace
