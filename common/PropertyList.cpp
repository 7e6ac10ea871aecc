#include "common/PropertyList.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <QDateTime>
#include <QFile>
#include <QTimeZone>
#include <plist/plist.h>

namespace quindle {

namespace {

struct PlistFree
{
    void operator()(void* node) const { plist_free(node); }
};
using PlistPointer = std::unique_ptr<void, PlistFree>;

struct MemoryFree
{
    void operator()(void* memory) const { std::free(memory); }
};
using PlistText = std::unique_ptr<char, MemoryFree>;

// Property-list dates count seconds from here.
const QDateTime& referenceDate()
{
    static const QDateTime date(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    return date;
}

QVariant valueFromNode(plist_t node);

QVariant textFromNode(plist_t node)
{
    char* text = nullptr;
    plist_get_string_val(node, &text);
    const PlistText owner(text);
    return QString::fromUtf8(text);
}

QVariant dataFromNode(plist_t node)
{
    char* bytes = nullptr;
    std::uint64_t length = 0;
    plist_get_data_val(node, &bytes, &length);
    const PlistText owner(bytes);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QVariant dateFromNode(plist_t node)
{
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return referenceDate().addSecs(seconds).addMSecs(microseconds / 1000).toLocalTime();
}

QVariant arrayFromNode(plist_t node)
{
    QVariantList list;
    const std::uint32_t size = plist_array_get_size(node);
    list.reserve(static_cast<qsizetype>(size));
    plist_array_iter cursor = nullptr;
    plist_array_new_iter(node, &cursor);
    const PlistText owner(static_cast<char*>(cursor));
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, cursor, &item);
        if (!item)
            return list;
        list.append(valueFromNode(item));
    }
}

QVariant dictionaryFromNode(plist_t node)
{
    QVariantMap map;
    plist_dict_iter cursor = nullptr;
    plist_dict_new_iter(node, &cursor);
    const PlistText owner(static_cast<char*>(cursor));
    for (;;) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, cursor, &key, &item);
        const PlistText keyOwner(key);
        if (!item)
            return map;
        map.insert(QString::fromUtf8(key), valueFromNode(item));
    }
}

QVariant valueFromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t boolean = 0;
        plist_get_bool_val(node, &boolean);
        return boolean != 0;
    }
    case PLIST_UINT: {
        std::uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return QVariant::fromValue(static_cast<qint64>(number));
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    case PLIST_STRING:
        return textFromNode(node);
    case PLIST_DATA:
        return dataFromNode(node);
    case PLIST_DATE:
        return dateFromNode(node);
    case PLIST_ARRAY:
        return arrayFromNode(node);
    case PLIST_DICT:
        return dictionaryFromNode(node);
    default:
        return {};
    }
}

plist_t nodeFromValue(const QVariant& value);

plist_t nodeFromDate(const QDateTime& date)
{
    const qint64 milliseconds = referenceDate().msecsTo(date);
    const auto seconds = static_cast<qint64>(std::floor(static_cast<double>(milliseconds) / 1000.0));
    const qint64 rest = milliseconds - seconds * 1000;
    return plist_new_date(static_cast<std::int32_t>(seconds), static_cast<std::int32_t>(rest * 1000));
}

plist_t nodeFromList(const QVariantList& list)
{
    plist_t node = plist_new_array();
    for (const QVariant& item : list)
        if (plist_t child = nodeFromValue(item))
            plist_array_append_item(node, child);
    return node;
}

plist_t nodeFromMap(const QVariantMap& map)
{
    plist_t node = plist_new_dict();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        if (plist_t child = nodeFromValue(entry.value()))
            plist_dict_set_item(node, entry.key().toUtf8().constData(), child);
    return node;
}

plist_t nodeFromInteger(qint64 number)
{
    return plist_new_uint(static_cast<std::uint64_t>(number));
}

plist_t nodeFromValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return nodeFromInteger(value.toLongLong());
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<std::uint64_t>(bytes.size()));
    }
    case QMetaType::QDateTime:
        return nodeFromDate(value.toDateTime());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return nodeFromList(value.toList());
    case QMetaType::QVariantMap:
        return nodeFromMap(value.toMap());
    default:
        return nullptr;
    }
}

} // namespace

std::optional<QVariant> propertyListFromBytes(const QByteArray& bytes)
{
    plist_t node = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &node);
    if (!node)
        return std::nullopt;
    const PlistPointer owner(node);
    return valueFromNode(node);
}

std::optional<QVariant> propertyListFromFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return propertyListFromBytes(file.readAll());
}

QByteArray xmlPropertyList(const QVariant& value)
{
    const PlistPointer node(nodeFromValue(value));
    if (!node)
        return {};
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node.get(), &xml, &length);
    const PlistText owner(xml);
    return {xml, static_cast<qsizetype>(length)};
}

} // namespace quindle
