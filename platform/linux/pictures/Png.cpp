#include "platform/linux/pictures/Png.h"

#include <QtEndian>
#include <zlib.h>

#include "platform/linux/pictures/Pixels.h"

namespace quindle {

namespace {

QByteArray bigEndian(std::uint32_t number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

const Bytef* asBytes(const QByteArray& bytes)
{
    return reinterpret_cast<const Bytef*>(bytes.constData());
}

/// Length, type, contents, and a check sum of the latter two.
QByteArray chunk(const char* type, const QByteArray& contents)
{
    const QByteArray checked = type + contents;
    const auto sum = crc32(0, asBytes(checked), static_cast<uInt>(checked.size()));
    return bigEndian(static_cast<std::uint32_t>(contents.size())) + checked +
           bigEndian(static_cast<std::uint32_t>(sum));
}

QByteArray header(const Pixels& pixels)
{
    // 8 bits a channel, red, green, blue and alpha; the only compression, the only filters, not interlaced.
    constexpr char format[] = {8, 6, 0, 0, 0};
    return bigEndian(static_cast<std::uint32_t>(pixels.width)) +
           bigEndian(static_cast<std::uint32_t>(pixels.height)) + QByteArray(format, sizeof format);
}

/// Each row with the number of its filter, which is none, before it.
QByteArray rows(const Pixels& pixels)
{
    QByteArray bytes;
    bytes.reserve(qsizetype{1 + 4 * pixels.width} * pixels.height);
    for (int y = 0; y < pixels.height; ++y) {
        bytes += '\0';
        for (int x = 0; x < pixels.width; ++x) {
            const Argb colour = colourAt(pixels, x, y);
            bytes += bigEndian(colour << 8U | alphaOf(colour));
        }
    }
    return bytes;
}

QByteArray compressed(const QByteArray& bytes)
{
    uLongf size = compressBound(static_cast<uLong>(bytes.size()));
    QByteArray packed(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (compress(reinterpret_cast<Bytef*>(packed.data()), &size, asBytes(bytes),
                 static_cast<uLong>(bytes.size())) != Z_OK)
        return {};
    packed.truncate(static_cast<qsizetype>(size));
    return packed;
}

} // namespace

QByteArray pngOf(const Pixels& pixels)
{
    if (pixels.isEmpty())
        return {};
    const QByteArray data = compressed(rows(pixels));
    if (data.isEmpty())
        return {};
    return QByteArrayLiteral("\x89PNG\r\n\x1a\n") + chunk("IHDR", header(pixels)) + chunk("IDAT", data) +
           chunk("IEND", {});
}

} // namespace quindle
