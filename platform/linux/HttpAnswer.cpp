#include "platform/linux/HttpAnswer.h"

#include <QList>
#include <zlib.h>

namespace quindle {

namespace {

using State = HttpReading::State;

struct Head
{
    int status = 0;
    QByteArray location;
    QByteArray transferEncoding;
    QByteArray contentEncoding;
    std::optional<qsizetype> contentLength;
};

/// What stands of a body so far; no body when it is broken.
struct Body
{
    State state = State::Incomplete;
    QByteArray bytes;
};

std::optional<qsizetype> sizeFrom(const QByteArray& digits, int base)
{
    bool isNumber = false;
    const qlonglong size = digits.toLongLong(&isNumber, base);
    if (!isNumber || size < 0 || digits.startsWith('+'))
        return std::nullopt;
    return size;
}

/// False for a field that cannot be believed.
bool takeField(Head& head, const QByteArray& line)
{
    const qsizetype colon = line.indexOf(':');
    if (colon <= 0)
        return false;
    const QByteArray name = line.left(colon).toLower();
    const QByteArray value = line.mid(colon + 1).trimmed();
    if (name == "location")
        head.location = value;
    else if (name == "transfer-encoding")
        head.transferEncoding = value.toLower();
    else if (name == "content-encoding")
        head.contentEncoding = value.toLower();
    else if (name == "content-length") {
        head.contentLength = sizeFrom(value, 10);
        return head.contentLength.has_value();
    }
    return true;
}

std::optional<Head> headFromLines(const QByteArray& text)
{
    QList<QByteArray> lines = text.split('\n');
    const QByteArray first = lines.takeFirst().trimmed();
    if (!first.startsWith("HTTP/1.") || first.size() < 12 || first[8] != ' ')
        return std::nullopt;
    Head head;
    head.status = first.mid(9, 3).toInt();
    for (const QByteArray& line : lines)
        if (const QByteArray field = line.trimmed(); !field.isEmpty() && !takeField(head, field))
            return std::nullopt;
    return head;
}

Body bodyOfLength(const QByteArray& rest, qsizetype length, qsizetype limit)
{
    if (length > limit)
        return {State::Broken, {}};
    if (rest.size() < length)
        return {State::Incomplete, {}};
    return {State::Complete, rest.left(length)};
}

Body bodyOfChunks(const QByteArray& rest, qsizetype limit)
{
    Body body;
    for (qsizetype at = 0;;) {
        const qsizetype lineEnd = rest.indexOf('\n', at);
        if (lineEnd < 0)
            return body;
        const QByteArray line = rest.mid(at, lineEnd - at);
        const auto size = sizeFrom(line.split(';').constFirst().trimmed(), 16);
        if (!size || *size > limit - body.bytes.size())
            return {State::Broken, {}};
        if (*size == 0)
            return {State::Complete, body.bytes};
        at = lineEnd + 1;
        body.bytes += rest.mid(at, *size);
        at += *size + 2; // after the line end that closes the chunk
        if (at > rest.size())
            return body;
    }
}

Body bodyAfter(const Head& head, const QByteArray& rest, bool isAtEnd, qsizetype limit)
{
    if (head.status == 204 || head.status == 304)
        return {State::Complete, {}};
    if (head.transferEncoding == "chunked")
        return bodyOfChunks(rest, limit);
    if (!head.transferEncoding.isEmpty())
        return {State::Broken, {}};
    if (head.contentLength)
        return bodyOfLength(rest, *head.contentLength, limit);
    if (rest.size() > limit)
        return {State::Broken, {}};
    return {isAtEnd ? State::Complete : State::Incomplete, rest};
}

std::optional<QByteArray> decoded(const QByteArray& encoding, const QByteArray& bytes, qsizetype limit)
{
    if (encoding.isEmpty() || encoding == "identity")
        return bytes;
    if (encoding == "gzip" || encoding == "x-gzip" || encoding == "deflate")
        return decompressed(bytes, limit);
    return std::nullopt;
}

/// Where the head ends and the body begins.
qsizetype endOfHead(const QByteArray& bytes)
{
    const qsizetype end = bytes.indexOf("\r\n\r\n");
    return end < 0 ? -1 : end + 4;
}

} // namespace

HttpReading readHttpAnswer(const QByteArray& bytes, bool isAtEnd, qsizetype bodyLimit)
{
    constexpr qsizetype longestHead = qsizetype{16} * 1024;
    const qsizetype end = endOfHead(bytes);
    if (end < 0)
        return {isAtEnd || bytes.size() > longestHead ? State::Broken : State::Incomplete, {}};
    const auto head = headFromLines(bytes.left(end));
    if (!head)
        return {State::Broken, {}};
    const Body body = bodyAfter(*head, bytes.mid(end), isAtEnd, bodyLimit);
    if (body.state == State::Incomplete)
        return {isAtEnd ? State::Broken : State::Incomplete, {}};
    const auto contents =
        body.state == State::Complete ? decoded(head->contentEncoding, body.bytes, bodyLimit) : std::nullopt;
    if (!contents)
        return {State::Broken, {}};
    return {State::Complete, {head->status, head->location, *contents}};
}

std::optional<QByteArray> decompressed(const QByteArray& compressed, qsizetype limit)
{
    constexpr int anyHeader = MAX_WBITS + 32;
    z_stream stream{};
    if (inflateInit2(&stream, anyHeader) != Z_OK)
        return std::nullopt;
    QByteArray input = compressed;
    QByteArray output(limit + 1, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(output.data());
    stream.avail_out = static_cast<uInt>(output.size());
    const int result = inflate(&stream, Z_FINISH);
    const auto size = static_cast<qsizetype>(stream.total_out);
    inflateEnd(&stream);
    if (result != Z_STREAM_END || size > limit)
        return std::nullopt;
    return output.left(size);
}

} // namespace quindle
