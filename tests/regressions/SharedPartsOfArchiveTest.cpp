// A small archive whose objects share one long part took time with the square of its size.

#include <vector>

#include <gtest/gtest.h>

#include "plist/BinaryListWriter.h"
#include "plist/KeyedArchive.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

constexpr quint32 many = 1000;

/// An archive of records; what they are made of is added to `objects`, whose first ones are null, the root
/// and the root's class.
class Archive
{
public:
    using Node = BinaryListWriter::Node;

    BinaryListWriter list;
    std::vector<Node> objects{list.addText(latin("$null")), 0, addClass("NSArray")};

    Node text(const char* content) { return list.addText(latin(content)); }
    Node addClass(const char* name) { return list.addDictionary({{text("$classname"), text(name)}}); }

    /// The number by which references name it.
    quint32 add(Node object)
    {
        objects.push_back(object);
        return static_cast<quint32>(objects.size() - 1);
    }

    QString faultWith(const std::vector<Node>& records)
    {
        objects[1] = list.addDictionary(
            {{text("$class"), list.addReference(2)}, {text("NS.objects"), list.addArray(records)}});
        const Node top = list.addDictionary({{text("root"), list.addReference(1)}});
        const Node archive = list.addDictionary({{text("$archiver"), text("NSKeyedArchiver")},
                                                 {text("$top"), top},
                                                 {text("$objects"), list.addArray(objects)}});
        return recordsFromKeyedArchive(list.finish(archive)).fault;
    }
};

const QString tooMuch = QStringLiteral("it says it holds more than it has room for");

TEST(SharedPartsOfArchiveTest, OneLongClassUnderManyNumbersIsNotSearchedForEach)
{
    Archive archive;
    BinaryListWriter::Entries entries(many, {archive.text("x"), archive.text("x")});
    entries.emplace_back(archive.text("$classname"), archive.text("NSDictionary"));
    const auto longClass = archive.list.addDictionary(entries);
    std::vector<BinaryListWriter::Node> records;
    for (quint32 record = 0; record < many; ++record) {
        const auto reference = archive.list.addReference(archive.add(longClass));
        const auto instance = archive.list.addDictionary({{archive.text("$class"), reference}});
        records.push_back(archive.list.addReference(archive.add(instance)));
    }
    EXPECT_EQ(archive.faultWith(records), tooMuch);
}

TEST(SharedPartsOfArchiveTest, OneLongKeyOfManyEntriesIsNotDecodedForEach)
{
    Archive archive;
    const auto longKey = archive.list.addText(QString(many * 10, u'k'));
    const auto record = archive.list.addReference(archive.add(archive.addClass("NSDictionary")));
    BinaryListWriter::Entries entries(many, {longKey, archive.text("x")});
    entries.emplace_back(archive.text("$class"), record);
    const auto instance = archive.list.addReference(archive.add(archive.list.addDictionary(entries)));
    EXPECT_EQ(archive.faultWith({instance}), tooMuch);
}

} // namespace
