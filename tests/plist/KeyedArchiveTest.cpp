#include "plist/KeyedArchive.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QTimeZone>

#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

QByteArray archive(const char* name)
{
    QFile file(testDataFolder() + QStringLiteral("/archives/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

const QVariantList& twoRecords()
{
    static const QVariantList records{
        QVariantMap{{QStringLiteral("Battery.CycleCount"), qint64{57}},
                    {QStringLiteral("Battery.StateOfHealth"), 100.0},
                    {QStringLiteral("Data.Uploaded"), false},
                    {QStringLiteral("Data.SnapshotDate"),
                     QDateTime(QDate(2014, 3, 1), QTime(23, 30), QTimeZone::utc()).toLocalTime()},
                    {QStringLiteral("Data.Raw"),
                     QVariantMap{{QStringLiteral("Voltage"), qint64{12000}},
                                 {QStringLiteral("List"),
                                  QVariantList{qint64{1}, 2.5, QStringLiteral("ä"), QByteArray("\x01")}}}}},
        QVariantMap{{QStringLiteral("old"), qint64{1}}}};
    return records;
}

/// Damage may leave records that are still well formed, but never both records and a fault.
void expectAnswer(const QByteArray& bytes)
{
    const ArchivedRecords read = recordsFromKeyedArchive(bytes);
    EXPECT_TRUE(read.fault.isEmpty() || read.records.isEmpty());
    EXPECT_FALSE(read.fault.contains(u'\n'));
}

class KeyedArchive : public testing::TestWithParam<const char*>
{
};

TEST_P(KeyedArchive, IsReadWithItsTypes)
{
    const ArchivedRecords read = recordsFromKeyedArchive(archive(GetParam()));
    EXPECT_EQ(read.fault, QString());
    ASSERT_EQ(read.records.size(), 2);
    EXPECT_EQ(read.records, twoRecords());
    const QVariantMap first = read.records.at(0).toMap();
    EXPECT_EQ(first.value(QStringLiteral("Battery.StateOfHealth")).typeId(), QMetaType::Double);
    EXPECT_EQ(first.value(QStringLiteral("Battery.CycleCount")).typeId(), QMetaType::LongLong);
    EXPECT_EQ(first.value(QStringLiteral("Data.Uploaded")).typeId(), QMetaType::Bool);
}

TEST_P(KeyedArchive, TruncatedAnywhereIsEmpty)
{
    // The last line of an XML list may lack its end.
    const QByteArray whole = archive(GetParam()).trimmed();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const ArchivedRecords read = recordsFromKeyedArchive(whole.left(length));
        EXPECT_TRUE(read.records.isEmpty() && !read.fault.isEmpty()) << length;
    }
}

TEST_P(KeyedArchive, AnyFlippedBitHasAnAnswer)
{
    const QByteArray whole = archive(GetParam());
    // Every bit of the binary one; every thirteenth of the long XML one, which covers each bit of each kind
    // of tag.
    const qsizetype step = whole.startsWith('<') ? 13 : 1;
    for (qsizetype bit = 0; bit < whole.size() * 8; bit += step) {
        QByteArray flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        expectAnswer(flipped);
    }
}

TEST_P(KeyedArchive, AnyTwoOverwrittenBytesHaveAnAnswer)
{
    const QByteArray whole = archive(GetParam());
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = whole;
        for (int count = 0; count < 2; ++count)
            damaged[static_cast<qsizetype>(random() % static_cast<std::size_t>(damaged.size()))] =
                static_cast<char>(random());
        expectAnswer(damaged);
    }
}

INSTANTIATE_TEST_SUITE_P(Encodings, KeyedArchive, testing::Values("two-records.binary", "two-records.xml"),
                         [](const auto& encoding) {
                             return std::string(encoding.param).find("xml") == std::string::npos ? "Binary"
                                                                                                 : "Xml";
                         });

QByteArray uid(int number)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(number) + "</integer></dict>";
}

QByteArray uids(std::initializer_list<int> numbers)
{
    QByteArray list;
    for (const int number : numbers)
        list += uid(number);
    return "<array>" + list + "</array>";
}

/// The objects 0 to 2 are null and the two classes; `objects` are those from 3, the root.
QByteArray archiveOf(const QByteArray& objects, const QByteArray& arrayClass = "NSArray")
{
    const auto aClass = [](const QByteArray& name) {
        return "<dict><key>$classname</key><string>" + name + "</string></dict>";
    };
    return "<plist><dict><key>$archiver</key><string>NSKeyedArchiver</string><key>$top</key><dict>"
           "<key>root</key>" +
           uid(3) + "</dict><key>$objects</key><array><string>$null</string>" + aClass(arrayClass) +
           aClass("NSDictionary") + objects + "</array></dict></plist>";
}

QByteArray array(const QByteArray& items)
{
    return "<dict><key>$class</key>" + uid(1) + "<key>NS.objects</key>" + items + "</dict>";
}

QByteArray dictionary(const QByteArray& keys, const QByteArray& values)
{
    return "<dict><key>$class</key>" + uid(2) + "<key>NS.keys</key>" + keys + "<key>NS.objects</key>" +
           values + "</dict>";
}

const char* const abTexts = "<string>b</string><string>a</string>";
const char* const oneTwoThree = "<integer>1</integer><integer>2</integer><integer>3</integer>";

TEST(KeyedArchiveKeys, RecordsMayHaveThemInAnyOrder)
{
    const ArchivedRecords read =
        recordsFromKeyedArchive(archiveOf(array(uids({4, 5, 6})) + dictionary(uids({7, 8}), uids({9, 10})) +
                                          dictionary(uids({7, 8}), uids({10, 11})) +
                                          dictionary(uids({8, 7}), uids({9, 10})) + abTexts + oneTwoThree));
    EXPECT_EQ(read.fault, QString());
    const auto record = [](qint64 a, qint64 b) {
        return QVariant(QVariantMap{{QStringLiteral("a"), a}, {QStringLiteral("b"), b}});
    };
    EXPECT_EQ(read.records, (QVariantList{record(2, 1), record(3, 2), record(1, 2)}));
}

TEST(KeyedArchiveKeys, OfEqualOnesTheLastCounts)
{
    const ArchivedRecords read = recordsFromKeyedArchive(
        archiveOf(array(uids({4})) + dictionary(uids({5, 6, 5}), uids({7, 8, 9})) + abTexts + oneTwoThree));
    EXPECT_EQ(read.fault, QString());
    EXPECT_EQ(read.records, (QVariantList{QVariantMap{{QStringLiteral("a"), qint64{2}},
                                                      {QStringLiteral("b"), qint64{3}}}}));
}

TEST(KeyedArchiveKeys, ThatAreNumbersSpoilARecordEachTime)
{
    const QByteArray keyedByNumber = dictionary(uids({6}), uids({6}));
    const ArchivedRecords inside =
        recordsFromKeyedArchive(archiveOf(array(uids({4})) + dictionary(uids({5}), uids({7})) +
                                          "<string>a</string>" + "<integer>1</integer>" + keyedByNumber));
    EXPECT_EQ(
        inside.records,
        (QVariantList{QVariantMap{{QStringLiteral("a"), QVariantMap{{QStringLiteral("1"), qint64{1}}}}}}));
    const ArchivedRecords outside = recordsFromKeyedArchive(
        archiveOf(array(uids({4, 5})) + dictionary(uids({8}), uids({7})) + keyedByNumber +
                  "<integer>1</integer>" + keyedByNumber + "<string>a</string>"));
    EXPECT_EQ(outside.fault, QStringLiteral("an element is not a dictionary with text keys"));
}

TEST(KeyedArchiveKeys, HaveAsManyValues)
{
    for (const auto& values : {uids({7}), uids({7, 8, 9}), QByteArray("<string>none</string>")})
        EXPECT_FALSE(recordsFromKeyedArchive(archiveOf(array(uids({4})) + dictionary(uids({5, 6}), values) +
                                                       abTexts + oneTwoThree))
                         .fault.isEmpty());
}

TEST(KeyedArchiveRoot, IsAnArray)
{
    struct
    {
        const char* rootClass;
        qsizetype records;
    } const rows[] = {{"NSArray", 1},      {"NSMutableArray", 1}, {"NSSet", 0},
                      {"NSMutableSet", 0}, {"NSOrderedSet", 0},   {"NSMutableOrderedSet", 0}};
    const QByteArray objects = array(uids({4})) + dictionary(uids({5}), uids({6})) + abTexts;
    for (const auto& row : rows) {
        const ArchivedRecords read = recordsFromKeyedArchive(archiveOf(objects, row.rootClass));
        EXPECT_EQ(read.records.size(), row.records) << row.rootClass;
        EXPECT_EQ(read.fault, row.records > 0 ? QString() : QStringLiteral("its root is not an array"));
    }
}

TEST(KeyedArchiveDates, ReachAsFarAsADateCan)
{
    const auto readDate = [](const char* seconds) {
        return recordsFromKeyedArchive(archiveOf(array(uids({4})) + dictionary(uids({5}), uids({6})) +
                                                 "<string>k</string><dict><key>$class</key>" + uid(7) +
                                                 "<key>NS.time</key><real>" + seconds + "</real></dict>" +
                                                 "<dict><key>$classname</key><string>NSDate</string></dict>"))
            .records;
    };
    ASSERT_EQ(readDate("1e300").size(), 1);
    EXPECT_EQ(readDate("1e300"), readDate("inf"));
    EXPECT_GT(readDate("inf").at(0).toMap().value(QStringLiteral("k")).toDate().year(), 200'000);
    EXPECT_EQ(readDate("nan").size(), 0);
}

TEST(KeyedArchiveGarbage, TenMegabytesAreAnsweredQuickly)
{
    const QList<QByteArray> starts{"", "bplist00", "<?xml version=\"1.0\"?><plist><array>"};
    for (const QByteArray& start : starts) {
        QByteArray garbage = start + QByteArray(10'000'000, '\xa1');
        expectAnswer(garbage);
        garbage.replace(start.size(), 10'000'000 - 32, QByteArray(10'000'000 - 32, '<'));
        expectAnswer(garbage);
    }
    EXPECT_TRUE(
        recordsFromKeyedArchive("<plist>" + QByteArray("<array>").repeated(1'400'000)).records.isEmpty());
}

TEST(KeyedArchiveGarbage, EntitiesDoNotUnfoldForEver)
{
    QByteArray laughs = "<!DOCTYPE plist [<!ENTITY a0 \"ha\">";
    for (int level = 1; level < 30; ++level) {
        const QByteArray inner = "&a" + QByteArray::number(level - 1) + ';';
        laughs += "<!ENTITY a" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
    }
    expectAnswer(laughs + "]><plist><string>&a29;</string></plist>");
}

} // namespace
