#include "common/Digests.h"

#include <QCryptographicHash>

namespace quindle {

namespace {

QString hexDigest(const QString& text, QCryptographicHash::Algorithm algorithm)
{
    // From UTF-8, in lower case: stored identifiers are compared as text.
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), algorithm).toHex());
}

} // namespace

QString md5Hex(const QString& text)
{
    // Not for security: it names batteries and computers, and stored records use these names.
    return hexDigest(text, QCryptographicHash::Md5);
}

QString sha1Hex(const QString& text)
{
    return hexDigest(text, QCryptographicHash::Sha1);
}

} // namespace quindle
