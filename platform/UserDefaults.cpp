#include "platform/UserDefaults.h"

#include "common/NumberConversion.h"

namespace quindle {

qint64 UserDefaults::integer(const QString& key) const
{
    return integerFromObject(object(key));
}

void UserDefaults::setInteger(const QString& key, qint64 value)
{
    setObject(key, QVariant::fromValue(value));
}

QVariantMap UserDefaults::dictionary(const QString& key) const
{
    const QVariant value = object(key);
    // Files may be edited by hand: another type counts as none.
    return value.typeId() == QMetaType::QVariantMap ? value.toMap() : QVariantMap();
}

QString groupDatabaseName()
{
    return QStringLiteral("group.fernhollow.Quindle");
}

} // namespace quindle
