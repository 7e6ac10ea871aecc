// Records of an archive that each hold the one before came to thousands of levels, where 200 were the limit:
// reading never went deep, as each record found the one inside read already.

#include <gtest/gtest.h>

#include "plist/KeyedArchive.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

QByteArray uid(int object)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(object) + "</integer></dict>";
}

QByteArray classNamed(const char* name)
{
    return QByteArray("<dict><key>$classname</key><string>") + name + "</string></dict>";
}

/// Records of which the first one is empty.
QByteArray archiveOfStairs(int records)
{
    QByteArray references;
    QByteArray objects;
    for (int record = 0; record < records; ++record) {
        const QByteArray key = record > 0 ? uid(3) : QByteArray();
        const QByteArray inside = record > 0 ? uid(4 + record) : QByteArray();
        references += uid(5 + record);
        objects += "<dict><key>$class</key>" + uid(2) + "<key>NS.keys</key><array>" + key +
                   "</array><key>NS.objects</key><array>" + inside + "</array></dict>";
    }
    return "<plist><dict><key>$archiver</key><string>NSKeyedArchiver</string><key>$top</key><dict>"
           "<key>root</key>" +
           uid(4) + "</dict><key>$objects</key><array><string>$null</string>" + classNamed("NSArray") +
           classNamed("NSDictionary") + "<string>k</string><dict><key>$class</key>" + uid(1) +
           "<key>NS.objects</key><array>" + references + "</array></dict>" + objects +
           "</array></dict></plist>";
}

TEST(DeepSharedArchive, AsDeepAsAnyOther)
{
    EXPECT_EQ(recordsFromKeyedArchive(archiveOfStairs(511)).records.size(), 511);
    for (const int records : {512, 5'000}) {
        const ArchivedRecords read = recordsFromKeyedArchive(archiveOfStairs(records));
        EXPECT_EQ(read.records.size(), 0);
        EXPECT_EQ(read.fault, QStringLiteral("its objects are nested too deep"));
    }
}

} // namespace
