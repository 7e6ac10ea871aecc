#pragma once

#include <QByteArray>

namespace quindle {

/// Where the numbered objects of a binary property list lie in its bytes. Nothing is read before it is asked
/// for, and nothing that is handed out leads beyond the end.
class BinaryPropertyListObjects
{
public:
    /// The upper half of the byte that an object begins with.
    enum Type : quint8 {
        Single = 0x0, ///< null, false and true, by the lower half
        Integer = 0x1,
        Real = 0x2,
        Date = 0x3,
        Data = 0x4,
        Ascii = 0x5,
        Utf16 = 0x6,
        Reference = 0x8, ///< a UID
        Array = 0xa,     ///< and what is above: sets and dictionaries
        Dictionary = 0xd,
        Broken = 0xff, ///< or missing
    };

    struct Object
    {
        quint8 type = Broken; ///< one of Type, or one that the format does not use
        quint8 detail = 0;    ///< the byte's lower half
        quint64 start = 0;    ///< of the content
        quint64 count = 0;    ///< of bytes, characters, items or entries
    };

    explicit BinaryPropertyListObjects(QByteArray bytes);

    const QByteArray& bytes() const { return m_bytes; }

    /// At most as many as there are bytes; 0 when the bytes do not end as a binary list does.
    quint64 count() const { return m_count; }

    /// The number of the outermost object, below `count`.
    quint64 top() const { return m_top; }

    Object object(quint64 number) const
    {
        if (number >= m_count)
            return {};
        return objectAt(integer(m_offsetTable + number * m_offsetWidth, m_offsetWidth));
    }

    /// The number of the object at `index` of a container. A dictionary has `count` keys and then as many
    /// values.
    quint64 item(const Object& container, quint64 index) const
    {
        return integer(container.start + index * m_referenceWidth, m_referenceWidth);
    }

    /// A big-endian number of 1 to 8 bytes inside the content of an object.
    quint64 integer(quint64 start, quint64 width) const
    {
        const auto* bytes = reinterpret_cast<const uchar*>(m_bytes.constData()) + start;
        quint64 value = 0;
        for (quint64 index = 0; index < width; ++index)
            value = value << 8 | bytes[index];
        return value;
    }

private:
    Object objectAt(quint64 offset) const;
    bool readCount(Object& found) const;
    quint64 byteLength(const Object& found) const;

    QByteArray m_bytes;
    quint64 m_size;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_count = 0;
    quint64 m_top = 0;
    quint64 m_offsetTable = 0;
};

} // namespace quindle
