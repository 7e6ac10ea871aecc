#include "plist/PropertyListGraph.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/BinaryPropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Kind = PropertyListGraph::Kind;

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values)
        result += static_cast<char>(value);
    return result;
}

struct Scalar
{
    QByteArray object;
    Kind kind;
    QVariant value;
};

const Scalar scalars[] = {
    {"\x08", Kind::Boolean, false},
    {"\x09", Kind::Boolean, true},
    {bytes({0x10, 0xff}), Kind::Integer, qint64{255}},
    {bytes({0x11, 0xff, 0xfe}), Kind::Integer, qint64{65534}},
    {bytes({0x12, 0xff, 0xff, 0xff, 0xff}), Kind::Integer, qint64{0xffffffff}},
    {'\x13' + bigEndian(quint64(-1600), 8), Kind::Integer, qint64{-1600}},
    {'\x13' + bigEndian(quint64{1} << 63, 8), Kind::Integer, std::numeric_limits<qint64>::min()},
    {'\x14' + QByteArray(8, '\0') + bigEndian(quint64(-2), 8), Kind::Integer, qint64{-2}},
    {bytes({0x22, 0x3f, 0xc0, 0, 0}), Kind::Real, 1.5},
    {bytes({0x23, 0xbf, 0xf8, 0, 0, 0, 0, 0, 0}), Kind::Real, -1.5},
    {bytes({0x23, 0x7f, 0xf0, 0, 0, 0, 0, 0, 0}), Kind::Real, std::numeric_limits<double>::infinity()},
    {bytes({0x42, 0, 0xff}), Kind::Data, QByteArray("\0\xff", 2)},
    {bytes({0x4f, 0x10, 2, 'a', 'b'}), Kind::Data, QByteArray("ab")},
    {bytes({0x4f, 0x13, 0, 0, 0, 0, 0, 0, 0, 2, 'a', 'b'}), Kind::Data, QByteArray("ab")},
    {"\x50", Kind::Text, QStringLiteral("")},
    {"\x52"
     "ab",
     Kind::Text, QStringLiteral("ab")},
    {"\x52\xc3\xa9", Kind::Text, QStringLiteral("é")}, // not ASCII, as careless writers put it
    {bytes({0x62, 0xd8, 0x3d, 0xdd, 0x0b}), Kind::Text, QStringLiteral("🔋")},
    {bytes({0x6f, 0x10, 1, 0x20, 0xac}), Kind::Text, QStringLiteral("€")},
};

TEST(PropertyListGraph, EveryScalar)
{
    for (const Scalar& scalar : scalars) {
        const PropertyListGraph graph(binaryPropertyList({scalar.object}));
        const auto element = graph.element(graph.root());
        EXPECT_EQ(element.kind, scalar.kind) << scalar.object.toHex().toStdString();
        EXPECT_EQ(graph.value(element), scalar.value) << scalar.object.toHex().toStdString();
        EXPECT_EQ(graph.value(element).typeId(), scalar.value.typeId());
    }
}

TEST(PropertyListGraph, WhatHasNoValue)
{
    struct
    {
        QByteArray object;
        Kind kind;
    } const rows[] = {
        {QByteArray(1, '\0'), Kind::Null},
        {"\xa0", Kind::Array},
        {"\xb0", Kind::Array},
        {"\xc0", Kind::Array},
        {"\xd0", Kind::Dictionary},
        {"\x80\x07", Kind::Reference},
        {bytes({0x33, 0x7f, 0xf8, 0, 0, 0, 0, 0, 0}), Kind::Date}, // not a number
    };
    for (const auto& row : rows) {
        const PropertyListGraph graph(binaryPropertyList({row.object}));
        EXPECT_EQ(graph.element(graph.root()).kind, row.kind) << row.object.toHex().toStdString();
        EXPECT_FALSE(graph.value(graph.element(graph.root())).isValid());
    }
}

TEST(PropertyListGraph, WhatTheFormatDoesNotUseIsInvalid)
{
    const QByteArray content(40, '\0');
    for (const int marker :
         {0x01, 0x07, 0x0a, 0x0f, 0x15, 0x1f, 0x20, 0x21, 0x24, 0x30, 0x32, 0x34, 0x70, 0x90, 0xe0, 0xf0}) {
        const PropertyListGraph graph(binaryPropertyList({static_cast<char>(marker) + content}));
        EXPECT_EQ(graph.element(graph.root()).kind, Kind::Invalid) << marker;
    }
}

TEST(PropertyListGraph, WhatLeadsBeyondTheEndIsInvalid)
{
    const QByteArray huge = bigEndian(~quint64{0}, 8);
    const QByteArray half = bigEndian(quint64{1} << 63, 8);
    for (const QByteArray& object :
         {'\x4f' + ("\x13" + huge), '\x5f' + ("\x13" + huge), '\x6f' + ("\x13" + half),
          '\xaf' + ("\x13" + half), '\xdf' + ("\x13" + half), bytes({0x4f, 0x10, 0xff}),
          bytes({0xaf, 0x14, 1}), bytes({0x4f, 0x22, 1}), bytes({0x4f, 0x11, 1, 0})}) {
        const PropertyListGraph graph(binaryPropertyList({object}));
        EXPECT_EQ(graph.element(graph.root()).kind, Kind::Invalid) << object.toHex().toStdString();
    }
    const PropertyListGraph graph(binaryPropertyList({"\x09"}));
    EXPECT_EQ(graph.element(1).kind, Kind::Invalid);
    EXPECT_EQ(graph.element(PropertyListGraph::noNode).kind, Kind::Invalid);
}

TEST(PropertyListGraph, AReferenceIsReadWithItsElementAndWithout)
{
    const PropertyListGraph wide(binaryPropertyList({bytes({0x81, 0x12, 0x34})}));
    EXPECT_EQ(wide.referenceAt(0), 0x1234U);
    EXPECT_EQ(wide.referenceAt(1), PropertyListGraph::noNode);
    for (int marker = 0; marker < 256; ++marker) {
        for (const int length : {0, 1, 8, 16}) {
            const QByteArray object = static_cast<char>(marker) + QByteArray(length, '\x21');
            const PropertyListGraph graph(binaryPropertyList({object}));
            EXPECT_EQ(graph.referenceAt(0), graph.reference(graph.element(0))) << marker << ' ' << length;
        }
    }
    // The last byte of the list as a marker: it belongs to the number that says where the offsets begin, so
    // that many bytes come before them.
    QByteArray atTheEnd = binaryPropertyList({'\x80' + QByteArray(0x8f - 9, '\0')});
    atTheEnd[atTheEnd.size() - 33] = static_cast<char>(atTheEnd.size() - 1);
    EXPECT_EQ(atTheEnd.back(), '\x8f');
    EXPECT_EQ(PropertyListGraph(atTheEnd).referenceAt(0), PropertyListGraph::noNode);
}

TEST(PropertyListGraph, BrokenTrailersHaveNoRoot)
{
    const QByteArray whole = binaryPropertyList({"\x09"});
    const auto rootKind = [](const QByteArray& list) {
        const PropertyListGraph graph(list);
        return graph.element(graph.root()).kind;
    };
    ASSERT_EQ(rootKind(whole), Kind::Boolean);
    struct
    {
        qsizetype fromEnd;
        QByteArray field;
    } const rows[] = {
        {26, bytes({0})}, // width of offsets
        {26, bytes({9})},
        {25, bytes({0})}, // width of references
        {25, bytes({9})},
        {24, bigEndian(0, 8)}, // count of objects
        {24, bigEndian(2, 8)},
        {24, bigEndian(~quint64{0}, 8)},
        {16, bigEndian(1, 8)}, // root
        {16, bigEndian(~quint64{0}, 8)},
        {8, bigEndian(~quint64{0}, 8)}, // place of the offsets
        {8, bigEndian(static_cast<quint64>(whole.size()) - 35, 8)},
    };
    for (const auto& row : rows) {
        QByteArray broken = whole;
        broken.replace(whole.size() - row.fromEnd, row.field.size(), row.field);
        EXPECT_EQ(rootKind(broken), Kind::Invalid) << row.fromEnd << ' ' << row.field.toHex().toStdString();
    }
    EXPECT_EQ(rootKind("bplist00"), Kind::Invalid);
    EXPECT_EQ(rootKind("bplist15" + whole.mid(8)), Kind::Invalid);
}

TEST(PropertyListGraph, ContainersLeadToOtherNodes)
{
    const PropertyListGraph graph(
        binaryPropertyList({bytes({0xd1, 1, 2}), "\x51k", bytes({0xa2, 1, 3}), bytes({0x81, 1, 0})}));
    const auto dictionary = graph.element(graph.root());
    const auto array = graph.element(graph.entry(dictionary, 0));
    ASSERT_EQ(dictionary.count, 1u);
    ASSERT_EQ(array.count, 2u);
    EXPECT_TRUE(graph.isText(graph.element(graph.key(dictionary, 0)), QLatin1StringView("k")));
    EXPECT_FALSE(graph.isText(graph.element(graph.key(dictionary, 0)), QLatin1StringView("l")));
    EXPECT_FALSE(graph.isText(array, QLatin1StringView("k")));
    EXPECT_EQ(graph.item(array, 0), 1u);
    EXPECT_EQ(graph.reference(graph.element(graph.item(array, 1))), 256u);
    for (const auto node :
         {graph.item(array, 2), graph.item(dictionary, 0), graph.key(array, 0), graph.key(dictionary, 1),
          graph.entry(dictionary, 1), graph.entry(array, 0), graph.reference(array)})
        EXPECT_EQ(node, PropertyListGraph::noNode);
}

TEST(PropertyListGraph, XmlHasTheSameNodes)
{
    const PropertyListGraph graph("<plist><dict><key>a</key><dict><key>CF$UID</key><integer>300</integer>"
                                  "</dict><key>é</key><string>é</string></dict></plist>");
    const auto dictionary = graph.element(graph.root());
    ASSERT_EQ(dictionary.kind, Kind::Dictionary);
    ASSERT_EQ(dictionary.count, 2u);
    EXPECT_EQ(graph.reference(graph.element(graph.entry(dictionary, 0))), 300u);
    EXPECT_EQ(graph.value(graph.element(graph.key(dictionary, 1))), QVariant(QStringLiteral("é")));
    EXPECT_TRUE(graph.isText(graph.element(graph.entry(dictionary, 1)), QLatin1StringView("\xe9")));
}

} // namespace
