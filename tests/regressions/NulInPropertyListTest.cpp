// A text with a NUL inside, which binary property lists can hold, ended the program.

#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

std::optional<QVariant> dictionary(const QByteArray& key, const QByteArray& text)
{
    return propertyListFromBytes(binaryPropertyList({QByteArray("\xd1\1\2"), key, text}));
}

const QString withNul = QStringLiteral("c") + QChar(u'\0') + QStringLiteral("d");

TEST(NulInPropertyList, IsACharacterOfTexts)
{
    const std::optional<QVariant> wanted = QVariantMap{{QStringLiteral("ab"), withNul}};
    EXPECT_EQ(dictionary("\x52"
                         "ab",
                         QByteArray("\x53"
                                    "c\0d",
                                    4)),
              wanted);
    EXPECT_EQ(dictionary("\x52"
                         "ab",
                         QByteArray("\x63\0c\0\0\0d", 7)),
              wanted);
}

TEST(NulInPropertyList, IsACharacterOfKeys)
{
    const std::optional<QVariant> wanted = QVariantMap{{withNul, true}};
    EXPECT_EQ(dictionary(QByteArray("\x53"
                                    "c\0d",
                                    4),
                         "\x09"),
              wanted);
    EXPECT_EQ(dictionary(QByteArray("\x63\0c\0\0\0d", 7), "\x09"), wanted);
}

// XML has no way to write it.
TEST(NulInPropertyList, IsLeftOutWhenWritten)
{
    EXPECT_EQ(propertyListFromBytes(xmlPropertyList(QVariantMap{{withNul, withNul}})),
              std::optional<QVariant>(QVariantMap{{QStringLiteral("cd"), QStringLiteral("cd")}}));
}

} // namespace
