#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QtEndian>

namespace quindle {

/// A number as binary property lists hold it, in 1 to 8 bytes.
inline QByteArray bigEndian(quint64 number, int width)
{
    QByteArray bytes(8, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes.last(width);
}

/// A binary property list of these objects, each given as its bytes; the first one is the root.
inline QByteArray binaryPropertyList(const QByteArrayList& objects, int referenceWidth = 1)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray& object : objects) {
        offsets += bigEndian(static_cast<quint64>(bytes.size()), 4);
        bytes += object;
    }
    const auto offsetTable = static_cast<quint64>(bytes.size());
    return bytes + offsets + QByteArray(6, '\0') + '\x04' + static_cast<char>(referenceWidth) +
           bigEndian(static_cast<quint64>(objects.size()), 8) + bigEndian(0, 8) + bigEndian(offsetTable, 8);
}

} // namespace quindle
