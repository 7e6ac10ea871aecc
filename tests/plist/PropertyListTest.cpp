#include "plist/PropertyList.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/BinaryPropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

const char* const uidKey = "CF$UID";

TEST(PropertyList, BothEncodingsHoldTheSameValues)
{
    const QVariantMap values{
        {QStringLiteral("text"), QStringLiteral("a")},
        {QStringLiteral("wide"), QStringLiteral("é")},
        {QStringLiteral("list"), QVariantList{qint64{1}, -1.5, true, QByteArray("\xff")}},
        {QStringLiteral("date"), QDateTime::fromMSecsSinceEpoch(978307201000)},
        {QLatin1String(uidKey), QVariantMap{{QLatin1String(uidKey), qint64{300}}}},
    };
    const QByteArray binary = binaryPropertyList(
        {QByteArray("\xd5\1\2\3\4\5\6\7\x08\x09\x0a"), QByteArray("\x54text"), QByteArray("\x54wide"),
         QByteArray("\x54list"),
         QByteArray("\x54"
                    "date"),
         QByteArray("\x56"
                    "CF$UID"),
         QByteArray("\x51"
                    "a"),
         QByteArray("\x61\0\xe9", 3), QByteArray("\xa4\x0b\x0c\x0d\x0e"),
         '\x33' + bigEndian(0x3ff0000000000000, 8), QByteArray("\x81\x01\x2c"), QByteArray("\x10\1"),
         '\x23' + bigEndian(0xbff8000000000000, 8), QByteArray("\x09"), QByteArray("\x41\xff")});
    EXPECT_EQ(propertyListFromBytes(binary), std::optional<QVariant>(values));
    EXPECT_EQ(propertyListFromBytes(xmlPropertyList(values)), std::optional<QVariant>(values));
}

TEST(PropertyList, SetsAreArrays)
{
    const auto value = propertyListFromBytes(binaryPropertyList({"\xa2\1\2", "\xb1\3", "\xc1\3", "\x09"}));
    EXPECT_EQ(value, std::optional<QVariant>(QVariantList{QVariantList{true}, QVariantList{true}}));
}

TEST(PropertyList, OfEqualKeysTheLastCounts)
{
    const QByteArray twice = binaryPropertyList({QByteArray("\xd2\1\1\2\3"), "\x51k", "\x09", "\x08"});
    EXPECT_EQ(propertyListFromBytes(twice),
              std::optional<QVariant>(QVariantMap{{QStringLiteral("k"), false}}));
}

TEST(PropertyList, WhatIsBrokenInsideSpoilsTheList)
{
    for (const QByteArrayList& objects : {
             QByteArrayList{"\xa1\1"},                                        // no such object
             QByteArrayList{"\xa1\1", QByteArray(1, '\0')},                   // a null
             QByteArrayList{"\xa1\1", "\x70"},                                // of no type
             QByteArrayList{QByteArray("\xd1\1\1"), "\x09"},                  // a key that is no text
             QByteArrayList{QByteArray("\xd1\1\2"), "\xa0", "\x09"},          // so is this
             QByteArrayList{QByteArray("\xd1\1\2"), "\x51k", "\x5f\x10\xff"}, // a text beyond the end
         })
        EXPECT_FALSE(propertyListFromBytes(binaryPropertyList(objects)));
    for (const QByteArray& bytes : {QByteArray("bplist00"), "bplist00" + QByteArray(60, '\xff')})
        EXPECT_FALSE(propertyListFromBytes(bytes));
}

TEST(PropertyList, FilesAreReadAsTheirBytes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list"));
    EXPECT_FALSE(propertyListFromFile(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<plist><true/></plist>");
    file.close();
    EXPECT_EQ(propertyListFromFile(path), std::optional<QVariant>(true));
}

} // namespace
