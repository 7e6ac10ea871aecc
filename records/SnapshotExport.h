#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QDateTime>
#include <QVariant>

namespace quindle {

enum class ExportFormat {
    Csv,  ///< RFC 4180: a line of headings, then a record a line; without the raw registry
    Json, ///< an array of objects, one a line
};

enum class ExportedIdentity {
    LeftOut, ///< no serial number, nor what is made of one
    Included,
};

struct ExportOptions
{
    ExportFormat format = ExportFormat::Csv;
    ExportedIdentity identity = ExportedIdentity::LeftOut;
    std::optional<QDateTime> since = {}; ///< leaves out what is older, or has no date
};

/// Snapshot records as text for other programs. Keys are those of the archive, dates ISO 8601 in UTC, numbers
/// have a decimal point in every locale. "Battery.Number" counts the batteries of all records from 1, so that
/// they can be told apart without their identifiers.
///
/// `write` is called with a part at a time; false ends it. False when it was ended.
bool exportSnapshots(const QVariantList& records, const ExportOptions& options,
                     const std::function<bool(const QByteArray&)>& write);

/// The record without identifiers of battery and computer, and without serial numbers wherever they stand in
/// the raw registry entry: entries named after one, and other entries that hold one.
QVariantMap withoutSerialNumbers(const QVariantMap& record);

} // namespace quindle
