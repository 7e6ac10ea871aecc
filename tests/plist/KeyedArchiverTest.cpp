#include <gtest/gtest.h>

#include <limits>

#include <QDateTime>
#include <QTimeZone>

#include "plist/KeyedArchive.h"
#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QVariantList readBack(const QVariantList& records)
{
    const ArchivedRecords read = recordsFromKeyedArchive(keyedArchive(records));
    EXPECT_EQ(read.fault, QString());
    return read.records;
}

QVariantMap recordOf(const QVariant& value)
{
    return {{QStringLiteral("key"), value}};
}

TEST(KeyedArchiver, EveryValueComesBackWithItsType)
{
    const QVariantList values{
        true,
        false,
        qint64{0},
        qint64{255},
        qint64{256},
        qint64{65536},
        qint64{4294967296},
        qint64{-1},
        std::numeric_limits<qint64>::max(),
        std::numeric_limits<qint64>::min(),
        0.1,
        -0.0,
        1.0,
        std::numeric_limits<double>::infinity(),
        QString(),
        QStringLiteral("text"),
        QStringLiteral("$null"),
        QStringLiteral("fifteen letters"),
        QStringLiteral("Größe \U0001F50B, line\r\nbreak"),
        QString(70'000, u'x'),
        QByteArray("\x00\xff", 2),
        QDateTime(QDate(2014, 3, 1), QTime(23, 30, 1, 234), QTimeZone::utc()),
        QDateTime(QDate(1969, 7, 20), QTime(20, 17), QTimeZone::utc()),
        QVariantList(),
        QVariantList{qint64{1}, QStringLiteral("two"), QVariantList{3.0}},
        QVariantMap(),
        QVariantMap{{QStringLiteral("inner"), QVariantMap{{QStringLiteral("$class"), qint64{7}}}}},
    };
    for (const QVariant& value : values) {
        const QVariantList records = readBack({recordOf(value)});
        ASSERT_EQ(records.size(), 1);
        const QVariant read = records[0].toMap().value(QStringLiteral("key"));
        EXPECT_EQ(read, value);
        EXPECT_EQ(read.typeId(), value.typeId());
    }
}

TEST(KeyedArchiver, SmallerNumbersBecomeThePlainOnes)
{
    const QVariantList records = readBack({recordOf(int{-5}), recordOf(uint{5}), recordOf(float{0.5F})});
    EXPECT_EQ(records, (QVariantList{recordOf(qint64{-5}), recordOf(qint64{5}), recordOf(0.5)}));
}

TEST(KeyedArchiver, WhatIsNoValueIsNull)
{
    const QVariantList records = readBack({recordOf(QVariant()), recordOf(QDateTime())});
    ASSERT_EQ(records.size(), 2);
    for (const QVariant& record : records) {
        EXPECT_TRUE(record.toMap().contains(QStringLiteral("key")));
        EXPECT_FALSE(record.toMap().value(QStringLiteral("key")).isValid());
    }
}

TEST(KeyedArchiver, NoRecordsAreAnArchiveToo)
{
    EXPECT_EQ(readBack({}), QVariantList());
}

TEST(KeyedArchiver, TheRecordsKeepTheirOrder)
{
    QVariantList records;
    for (qint64 number = 0; number < 300; ++number)
        records.append(QVariantMap{{QStringLiteral("a"), number}, {QStringLiteral("b"), number % 7}});
    EXPECT_EQ(readBack(records), records);
}

// What the platform's own reader looks for.
TEST(KeyedArchiver, ItIsBuiltAsThePlatformsEncoderBuildsIt)
{
    const auto list =
        propertyListFromBytes(keyedArchive({recordOf(QDateTime::fromSecsSinceEpoch(978307260))}));
    ASSERT_TRUE(list);
    const QVariantMap archive = list->toMap();
    EXPECT_EQ(archive.value(QStringLiteral("$archiver")), QStringLiteral("NSKeyedArchiver"));
    EXPECT_EQ(archive.value(QStringLiteral("$version")), qint64{100000});
    const QString reference = QStringLiteral("CF$UID");
    const QVariant top = archive.value(QStringLiteral("$top")).toMap().value(QStringLiteral("root"));
    EXPECT_EQ(top, (QVariantMap{{reference, qint64{1}}}));
    const QVariantList objects = archive.value(QStringLiteral("$objects")).toList();
    EXPECT_EQ(objects.value(0), QStringLiteral("$null"));
    const auto resolved = [&](const QVariant& value) {
        return objects.value(value.toMap().value(reference).toInt()).toMap();
    };
    const QVariantMap root = objects.value(1).toMap();
    const auto classOf = [&](const QVariantMap& object) {
        return resolved(object.value(QStringLiteral("$class")));
    };
    EXPECT_EQ(classOf(root).value(QStringLiteral("$classes")),
              (QVariantList{QStringLiteral("NSMutableArray"), QStringLiteral("NSArray"),
                            QStringLiteral("NSObject")}));
    const QVariantMap record = resolved(root.value(QStringLiteral("NS.objects")).toList().value(0));
    EXPECT_EQ(classOf(record).value(QStringLiteral("$classname")), QStringLiteral("NSDictionary"));
    const QVariantMap date = resolved(record.value(QStringLiteral("NS.objects")).toList().value(0));
    EXPECT_EQ(classOf(date).value(QStringLiteral("$classname")), QStringLiteral("NSDate"));
    EXPECT_EQ(date.value(QStringLiteral("NS.time")), 60.0);
}

// Years of records differ in few values.
TEST(KeyedArchiver, WhatIsEqualIsWrittenOnce)
{
    const QVariantMap record{{QStringLiteral("Mac.Model"), QString(500, u'M')},
                             {QStringLiteral("Data.Raw"), QVariantMap{{QString(500, u'k'), qint64{12000}}}}};
    const QVariantList records(100, record);
    EXPECT_LT(keyedArchive(records).size(), 20'000);
    EXPECT_EQ(readBack(records), records);
}

// An archive of a few bytes can unfold to a lot; imported, it must not fill the disk.
TEST(KeyedArchiver, WhatIsSharedStaysSmall)
{
    QVariantList list{qint64{1}};
    for (int level = 0; level < 5; ++level)
        list = QVariantList(10, QVariant(list));
    const QVariantList records{recordOf(list)};
    EXPECT_LT(keyedArchive(records).size(), 2'000);
    EXPECT_EQ(readBack(records), records);
}

// Equal lists of items make no equal objects when the keys differ, or when there are none.
TEST(KeyedArchiver, EqualItemsInUnlikeContainers)
{
    const QVariantList items{qint64{1}, qint64{2}};
    const QVariantMap first{{QStringLiteral("a"), qint64{1}}, {QStringLiteral("b"), qint64{2}}};
    const QVariantMap second{{QStringLiteral("c"), qint64{1}}, {QStringLiteral("d"), qint64{2}}};
    const QVariantList records{recordOf(items), recordOf(first), recordOf(second), recordOf(items)};
    EXPECT_EQ(readBack(records), records);
}

} // namespace
