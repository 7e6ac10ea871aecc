#include "common/Digests.h"

#include <QCryptographicHash>

namespace quindle {

QString md5Hex(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

} // namespace quindle
