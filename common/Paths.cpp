#include "common/Paths.h"

#include <pwd.h>
#include <unistd.h>

namespace quindle {

namespace {

constexpr char16_t firstEscape = 0xdc00; // of the byte 0; bytes below 0x80 are never escaped

bool isEscape(QChar character)
{
    return character.unicode() >= firstEscape + 0x80 && character.unicode() <= firstEscape + 0xff;
}

/// How many bytes at `at` are one character in UTF-8; 0 when none are.
qsizetype characterLength(const QByteArray& bytes, qsizetype at)
{
    // No character is longer in UTF-8.
    constexpr qsizetype longest = 4;
    for (qsizetype length = 1; length <= longest && at + length <= bytes.size(); ++length)
        if (QByteArrayView(bytes).sliced(at, length).isValidUtf8())
            return length;
    return 0;
}

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString pathText(const QByteArray& bytes)
{
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    QString text;
    for (qsizetype at = 0; at < bytes.size();) {
        if (const qsizetype length = characterLength(bytes, at)) {
            text += QString::fromUtf8(QByteArrayView(bytes).sliced(at, length));
            at += length;
        } else {
            text += QChar(char16_t(firstEscape + static_cast<unsigned char>(bytes[at])));
            ++at;
        }
    }
    return text;
}

QByteArray pathBytes(const QString& text)
{
    if (text.isValidUtf16())
        return text.toUtf8();
    QByteArray bytes;
    qsizetype plain = 0; // where the present run without an escape begins
    for (qsizetype at = 0; at < text.size(); ++at) {
        // A pair is one character; only a lone one can be an escape.
        if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
            ++at;
        } else if (isEscape(text[at])) {
            bytes += QStringView(text).sliced(plain, at - plain).toUtf8();
            bytes += static_cast<char>(text[at].unicode() - firstEscape);
            plain = at + 1;
        }
    }
    return bytes + QStringView(text).sliced(plain).toUtf8();
}

QStringList argumentTexts(int count, const char* const* arguments)
{
    QStringList texts;
    for (int index = 1; index < count; ++index)
        texts += pathText(arguments[index]);
    return texts;
}

QString homeFolder()
{
    QByteArray home = qgetenv("HOME");
    if (home.isEmpty())
        // HOME may not be set; the account says the same.
        if (const passwd* account = ::getpwuid(::geteuid()); account && account->pw_dir)
            home = account->pw_dir;
    // A relative one would mean another folder in each process.
    return home.startsWith('/') ? pathText(home) : QString();
}

QString pathWithoutLastComponent(const QString& path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype slash = trimmed.lastIndexOf(u'/');
    if (slash < 0)
        return QStringLiteral("");
    // The root has no folder above it.
    if (slash == 0)
        return QStringLiteral("/");
    return withoutTrailingSlashes(trimmed.left(slash));
}

QString pathWithTildeExpanded(const QString& path)
{
    if (path != u"~" && !path.startsWith(QStringLiteral("~/")))
        return path;
    const QString home = homeFolder();
    return home.isEmpty() ? path : home + path.mid(1);
}

} // namespace quindle
