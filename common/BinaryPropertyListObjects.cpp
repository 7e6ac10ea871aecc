#include "common/BinaryPropertyListObjects.h"

#include <utility>

namespace quindle {

BinaryPropertyListObjects::BinaryPropertyListObjects(QByteArray bytes)
    : m_bytes(std::move(bytes))
    , m_size(static_cast<quint64>(m_bytes.size()))
{
    constexpr quint64 headerSize = 8;
    constexpr quint64 trailerSize = 32;
    if (m_size < headerSize + trailerSize)
        return;
    const quint64 trailer = m_size - trailerSize;
    m_offsetWidth = integer(trailer + 6, 1);
    m_referenceWidth = integer(trailer + 7, 1);
    const quint64 count = integer(trailer + 8, 8);
    m_top = integer(trailer + 16, 8);
    m_offsetTable = integer(trailer + 24, 8);
    const auto isWidth = [](quint64 width) { return width >= 1 && width <= 8; };
    const bool isTableInside = isWidth(m_offsetWidth) && isWidth(m_referenceWidth) &&
                               m_offsetTable <= trailer && count <= (trailer - m_offsetTable) / m_offsetWidth;
    if (isTableInside && m_top < count)
        m_count = count;
}

BinaryPropertyListObjects::Object BinaryPropertyListObjects::objectAt(quint64 offset) const
{
    if (offset >= m_size)
        return {};
    const quint64 marker = integer(offset, 1);
    Object found{.type = static_cast<quint8>(marker >> 4),
                 .detail = static_cast<quint8>(marker & 0x0f),
                 .start = offset + 1};
    const bool isInside = readCount(found) && found.start <= m_size && found.count <= m_size &&
                          byteLength(found) <= m_size - found.start;
    return isInside ? found : Object();
}

/// A count of 15 and more stands behind the first byte, as an integer of its own.
bool BinaryPropertyListObjects::readCount(Object& found) const
{
    found.count = found.detail;
    const bool hasCount = found.type >= Data && found.type != Reference;
    if (!hasCount || found.detail != 0xf)
        return true;
    const quint64 marker = found.start < m_size ? integer(found.start, 1) : 0;
    const quint64 width = quint64{1} << (marker & 0x0f);
    if (marker >> 4 != Integer || width > 8 || width >= m_size - found.start)
        return false;
    found.count = integer(found.start + 1, width);
    found.start += 1 + width;
    return true;
}

/// `count` is at most the file's size here, so that nothing overflows.
quint64 BinaryPropertyListObjects::byteLength(const Object& found) const
{
    switch (found.type) {
    case Integer:
    case Real:
        return quint64{1} << found.detail;
    case Date:
        return sizeof(double);
    case Data:
    case Ascii:
        return found.count;
    case Utf16:
        return found.count * 2;
    case Reference:
        return found.count + 1;
    case Dictionary:
        return found.count * m_referenceWidth * 2;
    default:
        return found.type >= Array ? found.count * m_referenceWidth : 0;
    }
}

} // namespace quindle
