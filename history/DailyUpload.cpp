#include "history/DailyUpload.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "common/DateFromText.h"
#include "common/Digests.h"
#include "common/ValueDescription.h"

namespace quindle {

namespace {

// In this order: the service joins records of one state by the hash of these texts.
constexpr std::array<const char*, 7> identityKeys{
    "Battery.BatteryID", "Battery.CycleCount",         "Battery.FullChargeCapacity", "Battery.DesignCapacity",
    "Mac.Model",         "Battery.ManufactureDateRaw", "Data.SnapshotDate",
};

QString snapshotDateKey()
{
    return QStringLiteral("Data.SnapshotDate");
}

QString rawKey()
{
    return QStringLiteral("Data.Raw");
}

void replaceDateByDay(QVariantMap& record)
{
    const QVariant date = record.value(snapshotDateKey());
    if (date.typeId() == QMetaType::QDateTime)
        // In the zone of the user: one day there has one hash.
        record.insert(snapshotDateKey(), dayText(date.toDateTime()));
}

QVariantMap withMaskedSerial(QVariantMap raw)
{
    const QString key = QStringLiteral("BatterySerialNumber");
    const QVariant serial = raw.value(key);
    // The registry holds whatever a driver wrote; only a text can be masked.
    if (serial.typeId() == QMetaType::QString)
        raw.insert(key, maskedSerial(serial.toString()));
    return raw;
}

void replaceRawByText(QVariantMap& record, SerialText serialText)
{
    const QVariant raw = record.value(rawKey());
    if (raw.typeId() != QMetaType::QVariantMap)
        return;
    const QVariantMap entry = raw.toMap();
    const QVariantMap shown = serialText == SerialText::Masked ? withMaskedSerial(entry) : entry;
    record.insert(rawKey(), QString::fromLatin1(valueDescription(shown).toUtf8().toBase64()));
}

/// JSON has no infinity and no NaN; they would be written as nulls.
bool isWritableAsJson(const QVariantMap& record)
{
    return std::all_of(record.cbegin(), record.cend(), [](const QVariant& value) {
        return value.typeId() != QMetaType::Double || std::isfinite(value.toDouble());
    });
}

QByteArray uploadBody(const QVariantMap& record)
{
    const QJsonArray records{QJsonObject::fromVariantMap(record)};
    return QJsonDocument(records).toJson(QJsonDocument::Compact).toBase64();
}

} // namespace

std::optional<DailyUpload> dailyUpload(const QVariantMap& snapshot,
                                       const std::optional<QString>& sendingVersion, SerialText serialText)
{
    QVariantMap record = snapshot;
    replaceDateByDay(record);
    const auto identity = identityText(record);
    if (!identity)
        return std::nullopt;
    record.insert(QStringLiteral("Data.Hash"), sha1Hex(*identity));
    if (sendingVersion)
        record.insert(QStringLiteral("Application.SendingVersion"), *sendingVersion);
    replaceRawByText(record, serialText);
    record.insert(QStringLiteral("Data.Daily"), QStringLiteral("1"));
    // Health without a design capacity is infinite; nothing is sent then.
    if (!isWritableAsJson(record))
        return std::nullopt;
    return DailyUpload{record, uploadBody(record)};
}

std::optional<QString> identityText(const QVariantMap& record)
{
    QString text;
    for (const char* key : identityKeys) {
        const QVariant value = record.value(QLatin1String(key));
        // All seven are needed: a hash of fewer would merge different batteries.
        if (!value.isValid())
            return std::nullopt;
        text += valueDescription(value);
    }
    return text;
}

QString maskedSerial(const QString& serial)
{
    constexpr qsizetype maskLength = 4;
    if (serial.size() < maskLength)
        return serial;
    QString masked = serial;
    // inherited: wherever they occur, not only at the end.
    return masked.replace(serial.right(maskLength), QStringLiteral("xxxx"));
}

QString dailyUploadUrl(const QString& host)
{
    return QStringLiteral("https://") + host + QStringLiteral("/qndonline/upload_mac_db_pro.php");
}

} // namespace quindle
