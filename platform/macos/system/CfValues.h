#pragma once

#include <QString>
#include <QVariant>

#include "platform/macos/system/CfOwned.h"

/// The one place in which objects of Core Foundation become plain values and the other way round. The values
/// are those of property lists: text (QString), integer (qint64), real (double), boolean (bool), date
/// (QDateTime, local time), data (QByteArray), array (QVariantList; a set too), dictionary (QVariantMap).
namespace quindle {

/// Of null, of another type and below 512 levels: the invalid value, which is left out of arrays and
/// dictionaries, as is the value of a key that is not text. An integer beyond 64 bits with a sign loses its
/// upper bits: registries show negative numbers that way.
QVariant valueFromCf(CFTypeRef object);

/// The dictionary; empty of null and of anything else.
QVariantMap mapFromCf(CFTypeRef object);

/// The text; empty of null and of anything else.
QString textFromCf(CFTypeRef object);

/// A new object, none for the invalid value and other types than those above.
CfOwned<CFTypeRef> cfFromValue(const QVariant& value);

CfOwned<CFStringRef> cfFromText(const QString& text);

} // namespace quindle
