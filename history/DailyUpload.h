#pragma once

#include <optional>

#include <QByteArray>
#include <QVariantMap>

/// What the daily upload sends: the rule that makes it from a snapshot record, without sending anything.
namespace quindle {

struct DailyUpload
{
    QVariantMap record; ///< the payload object; texts, numbers and booleans only
    QByteArray body;    ///< base64 of the JSON array that holds the record alone
};

enum class SerialText {
    Masked,
    Clear, ///< inherited: only for the former entry point, which nothing in the program calls
};

/// The upload of a snapshot record. Nothing when one of the identity values is missing, or when JSON cannot
/// hold the record (a health that is not a finite number). The record itself stays as it is.
std::optional<DailyUpload> dailyUpload(const QVariantMap& snapshot,
                                       const std::optional<QString>& sendingVersion, SerialText serialText);

/// The texts that identify a battery on one day, joined: the same battery in the same state gives the same
/// text. Nothing when one of them is missing.
std::optional<QString> identityText(const QVariantMap& record);

/// The serial number with its last four characters replaced by "xxxx" wherever they occur, from the left and
/// without overlaps. One of fewer than four characters stays as it is.
QString maskedSerial(const QString& serial);

/// Where the upload goes on a host of the statistics service: HTTPS always.
QString dailyUploadUrl(const QString& host);

} // namespace quindle
