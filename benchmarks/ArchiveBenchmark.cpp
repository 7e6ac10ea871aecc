#include <cstring>
#include <utility>
#include <vector>

#include <QHash>
#include <QtEndian>
#include <benchmark/benchmark.h>

#include "plist/KeyedArchive.h"

using namespace quindle;

namespace {

/// Writes binary keyed archives of daily records as the platform's encoder does: each text once, every
/// reference an object of its own, every record with a raw registry entry.
class ArchiveWriter
{
public:
    QByteArray archive(int records)
    {
        const quint32 objects = begin(0xa0, 0);
        m_archived.push_back(addText("$null"));
        const quint32 root = reserveArchived();
        m_recordClass = archivedClass("NSDictionary");
        m_arrayClass = archivedClass("NSArray");
        m_dateClass = archivedClass("NSDate");
        std::vector<quint32> elements;
        for (int day = 0; day < records; ++day)
            elements.push_back(record(day));
        m_archived[root] = instance(m_arrayClass, {{"NS.objects", elements}});
        m_objects[objects] = container(0xa0, m_archived);
        const quint32 top = dictionary({{addText("root"), reference(root)}});
        const quint32 whole = dictionary({{addText("$archiver"), addText("NSKeyedArchiver")},
                                          {addText("$version"), add(integer(100000))},
                                          {addText("$top"), top},
                                          {addText("$objects"), objects}});
        return file(whole);
    }

private:
    using Entries = std::vector<std::pair<quint32, quint32>>;
    using Lists = std::vector<std::pair<const char*, std::vector<quint32>>>;

    static QByteArray bigEndian(quint64 value, int width)
    {
        QByteArray bytes(8, Qt::Uninitialized);
        qToBigEndian(value, bytes.data());
        return bytes.right(width);
    }

    static QByteArray integer(qint64 value)
    {
        return value >= 0 && value <= 0xffff ? '\x11' + bigEndian(static_cast<quint64>(value), 2)
                                             : '\x13' + bigEndian(static_cast<quint64>(value), 8);
    }

    static QByteArray real(char marker, double value)
    {
        quint64 bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return marker + bigEndian(bits, 8);
    }

    static QByteArray counted(int marker, std::size_t count)
    {
        if (count < 15)
            return QByteArray(1, static_cast<char>(marker | static_cast<int>(count)));
        return QByteArray(1, static_cast<char>(marker | 0xf)) + '\x12' + bigEndian(count, 4);
    }

    static QByteArray container(int marker, const std::vector<quint32>& items)
    {
        QByteArray bytes = counted(marker, marker == 0xd0 ? items.size() / 2 : items.size());
        for (const quint32 item : items)
            bytes += bigEndian(item, 4);
        return bytes;
    }

    quint32 begin(int marker, std::size_t count) { return add(counted(marker, count)); }

    quint32 add(const QByteArray& object)
    {
        m_objects.push_back(object);
        return static_cast<quint32>(m_objects.size() - 1);
    }

    quint32 addText(const QByteArray& text)
    {
        const auto known = m_texts.constFind(text);
        if (known != m_texts.cend())
            return *known;
        const quint32 added = add(counted(0x50, static_cast<std::size_t>(text.size())) + text);
        m_texts.insert(text, added);
        return added;
    }

    quint32 dictionary(const Entries& entries)
    {
        std::vector<quint32> items;
        for (const auto& [key, value] : entries)
            items.push_back(key);
        for (const auto& [key, value] : entries)
            items.push_back(value);
        return add(container(0xd0, items));
    }

    quint32 reference(quint32 archived) { return add('\x83' + bigEndian(archived, 4)); }

    quint32 reserveArchived()
    {
        m_archived.push_back(0);
        return static_cast<quint32>(m_archived.size() - 1);
    }

    quint32 archive(quint32 object)
    {
        m_archived.push_back(object);
        return static_cast<quint32>(m_archived.size() - 1);
    }

    quint32 archivedText(const QByteArray& text)
    {
        const auto known = m_archivedTexts.constFind(text);
        if (known != m_archivedTexts.cend())
            return *known;
        const quint32 archived = archive(addText(text));
        m_archivedTexts.insert(text, archived);
        return archived;
    }

    quint32 archivedClass(const char* name)
    {
        const quint32 names = add(container(0xa0, {addText(name), addText("NSObject")}));
        return archive(dictionary({{addText("$classname"), addText(name)}, {addText("$classes"), names}}));
    }

    quint32 instance(quint32 archivedClass, const Lists& lists)
    {
        Entries entries;
        for (const auto& [name, archived] : lists) {
            std::vector<quint32> references;
            for (const quint32 item : archived)
                references.push_back(reference(item));
            entries.emplace_back(addText(name), add(container(0xa0, references)));
        }
        entries.emplace_back(addText("$class"), reference(archivedClass));
        return dictionary(entries);
    }

    quint32 map(const std::vector<std::pair<QByteArray, quint32>>& entries)
    {
        std::vector<quint32> keys;
        std::vector<quint32> values;
        for (const auto& [key, value] : entries) {
            keys.push_back(archivedText(key));
            values.push_back(value);
        }
        return archive(instance(m_recordClass, {{"NS.keys", keys}, {"NS.objects", values}}));
    }

    quint32 number(qint64 value) { return archive(add(integer(value))); }

    /// A registry entry of 50 properties.
    quint32 rawEntry(int day)
    {
        std::vector<std::pair<QByteArray, quint32>> entries;
        for (int index = 0; index < 40; ++index)
            entries.emplace_back("RegistryProperty" + QByteArray::number(index), number(day * 31 + index));
        for (int index = 0; index < 10; ++index)
            entries.emplace_back("RegistryText" + QByteArray::number(index),
                                 archivedText("D865033Y2CXF9CPAW" + QByteArray::number(index)));
        return map(entries);
    }

    quint32 record(int day)
    {
        std::vector<std::pair<QByteArray, quint32>> entries;
        for (int index = 0; index < 9; ++index)
            entries.emplace_back("Battery.Number" + QByteArray::number(index), number(day + index));
        for (int index = 0; index < 9; ++index)
            entries.emplace_back("Mac.Text" + QByteArray::number(index),
                                 archivedText("text " + QByteArray::number(index * 10 + day % 10)));
        entries.emplace_back("Battery.StateOfHealth", archive(add(real('\x23', 80.0 + day % 20))));
        const quint32 time = add(real('\x23', 86400.0 * day));
        entries.emplace_back(
            "Data.SnapshotDate",
            archive(dictionary({{addText("NS.time"), time}, {addText("$class"), reference(m_dateClass)}})));
        entries.emplace_back("Data.Raw", rawEntry(day));
        return map(entries);
    }

    QByteArray file(quint32 top) const
    {
        QByteArray bytes = "bplist00";
        QByteArray offsets;
        for (const QByteArray& object : m_objects) {
            offsets += bigEndian(static_cast<quint64>(bytes.size()), 4);
            bytes += object;
        }
        const auto table = static_cast<quint64>(bytes.size());
        return bytes + offsets + QByteArray(6, '\0') + '\x04' + '\x04' + bigEndian(m_objects.size(), 8) +
               bigEndian(top, 8) + bigEndian(table, 8);
    }

    std::vector<QByteArray> m_objects;
    std::vector<quint32> m_archived;
    QHash<QByteArray, quint32> m_texts;
    QHash<QByteArray, quint32> m_archivedTexts;
    quint32 m_recordClass = 0;
    quint32 m_arrayClass = 0;
    quint32 m_dateClass = 0;
};

void readArchive(benchmark::State& state)
{
    const auto records = static_cast<int>(state.range(0));
    const QByteArray archive = ArchiveWriter().archive(records);
    for (auto _ : state) {
        const ArchivedRecords read = recordsFromKeyedArchive(archive);
        if (read.records.size() != records)
            state.SkipWithError("not all records were read");
        benchmark::DoNotOptimize(read);
    }
    state.counters["MB"] = static_cast<double>(archive.size()) / 1e6;
    state.counters["s/record"] =
        benchmark::Counter(static_cast<double>(records),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(readArchive)
    ->Arg(1)
    ->Arg(365)
    ->Arg(3650)
    ->Arg(10000)
    ->Arg(36500)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
