// A text with a NUL inside, which binary property lists can hold, ended the program.

#include <gtest/gtest.h>

#include "common/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// A binary dictionary of one key and one text.
QByteArray dictionary(const QByteArray& key, const QByteArray& value)
{
    const auto text = [](const QByteArray& bytes) {
        return QByteArray(1, static_cast<char>(0x50 + bytes.size())) + bytes;
    };
    QByteArray bytes("bplist00\xd1\x01\x02" + text(key) + text(value));
    const auto table = static_cast<char>(bytes.size());
    bytes += QByteArray("\x08\x0b") + static_cast<char>(0x0c + key.size());
    return bytes + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + "\x03" + QByteArray(15, '\0') +
           table;
}

TEST(NulInPropertyList, ValuesBeginBeforeIt)
{
    const auto list = propertyListFromBytes(dictionary("ab", QByteArray("c\0d", 3)));
    ASSERT_TRUE(list.has_value());
    EXPECT_TRUE(list->toMap().value(QStringLiteral("ab")).toString().startsWith(u'c'));
}

TEST(NulInPropertyList, WideCharacters)
{
    QByteArray bytes = dictionary("ab", QByteArray("\0c\0\0", 4));
    const qsizetype marker = bytes.indexOf('\x54');
    bytes[marker] = '\x62'; // two characters of 16 bits
    const auto list = propertyListFromBytes(bytes);
    ASSERT_TRUE(list.has_value());
    EXPECT_TRUE(list->toMap().value(QStringLiteral("ab")).toString().startsWith(u'c'));
}

TEST(NulInPropertyList, KeysCannotHaveIt)
{
    EXPECT_TRUE(propertyListFromBytes(dictionary("a", "b")).has_value());
    EXPECT_FALSE(propertyListFromBytes(dictionary(QByteArray("a\0b", 3), "c")).has_value());
    EXPECT_FALSE(propertyListFromBytes(dictionary(QByteArray(1, '\0'), "c")).has_value());
}

} // namespace
