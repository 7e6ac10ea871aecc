#include "common/PropertyList.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <QDateTime>
#include <QTimeZone>
#include <QtEndian>
#include <plist/plist.h>

#include "common/BinaryPropertyListShape.h"
#include "common/FileContents.h"
#include "common/PropertyListXml.h"

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

QVariant dateFromSeconds(double seconds)
{
    if (std::isnan(seconds))
        return {};
    constexpr double farthest = 9.0e15; // more than any year QDateTime knows
    const double milliseconds = std::clamp(std::round(seconds * 1000.0), -farthest, farthest);
    return referenceDate().addMSecs(static_cast<qint64>(milliseconds)).toLocalTime();
}

QVariant valueFromNode(plist_t node);

QVariant textFromNode(plist_t node)
{
    // Not plist_get_string_val, which ends the program at a text with a NUL inside.
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

QVariant dataFromNode(plist_t node)
{
    char* bytes = nullptr;
    std::uint64_t length = 0;
    plist_get_data_val(node, &bytes, &length);
    const PlistText owner(bytes);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

// The library hands dates out as 32-bit seconds and an unsigned fraction, which loses everything after 2069
// and turns fractions before 2001 around. Written alone as a binary list, the date is a big-endian double
// after the nine bytes of header and marker.
QVariant dateFromNode(plist_t node)
{
    constexpr std::uint32_t headerSize = 9;
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node, &bytes, &length);
    const PlistText owner(bytes);
    if (!bytes || length < headerSize + sizeof(double))
        return {};
    const auto seconds = std::bit_cast<double>(qFromBigEndian<quint64>(bytes + headerSize));
    return dateFromSeconds(seconds);
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

} // namespace

std::optional<QVariant> propertyListFromBytes(const QByteArray& bytes)
{
    if (!bytes.startsWith("bplist"))
        return propertyListFromXml(bytes);
    if (!hasBearableShape(bytes))
        return std::nullopt;
    plist_t node = nullptr;
    plist_from_bin(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &node);
    if (!node)
        return std::nullopt;
    const PlistPointer owner(node);
    return valueFromNode(node);
}

std::optional<QVariant> propertyListFromFile(const QString& path)
{
    const FileContents file = fileContents(path, mostPropertyListBytes);
    return file.error == 0 ? propertyListFromBytes(file.bytes) : std::nullopt;
}

} // namespace quindle
