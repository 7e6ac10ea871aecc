#pragma once

#include <utility>
#include <vector>

#include <QString>
#include <QVariant>

namespace quindle {

/// A true serial number and the invented one that replaces it.
struct SerialPair
{
    QString trueSerial;
    QString inventedSerial; ///< of the same length; empty for an empty serial
};

/// An invented serial that shares no run of four characters with any of `trueSerials`. The characters that
/// date a computer (3 to 5 of a serial of 11 or 12) stay when `keepsDate`; digits stay digits, capitals
/// capitals.
QString inventedSerial(const QString& serial, bool keepsDate, const QStringList& trueSerials);

/// `value` with every occurrence of a true serial replaced, and every run of four or more of its characters
/// (a part of a serial names a computer nearly as well): in texts, keys, data and whole numbers written like
/// a serial. A serial shorter than four characters is only replaced where it is the whole text. In keys a run
/// of letters that are not all capitals stays: it is a word of the key.
QVariant withoutSerials(const QVariant& value, const std::vector<SerialPair>& serials);

} // namespace quindle
