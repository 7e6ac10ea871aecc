#pragma once

#include <optional>

#include <QString>

#include "facts/Fact.h"

/// Values in words, with ASCII digits like the title and, in English and in the report, a decimal point like
/// the texts of the models themselves. Each is empty for what is not known.
namespace quindle {

/// The text, if it has more than blanks.
QString knownText(const std::optional<QString>& text);

/// One decimal, e.g. "66.7"; not known when not finite.
QString figureText(double figure, FactPlace place = FactPlace::View);

QString percentText(double percent, FactPlace place = FactPlace::View); ///< "83.9 %"
QString wattsText(double watts, FactPlace place = FactPlace::View);     ///< "12.4 W"

/// A number of things, e.g. "1,234". Drivers that do not count report 0 or less.
QString countText(qint64 count, FactPlace place);

/// In which unit capacities are shown.
struct CapacityWords
{
    FactPlace place = FactPlace::View;
    std::optional<double> voltage = {}; ///< V; with it in Wh at that voltage, else in mAh
};

/// The charge held and the room for it, both given in mAh: "4,000 of 6,000 mAh" or "45.6 of 68.4 Wh"; of two
/// capacities one may be unknown (0 or less).
QString capacitiesText(qint64 held, qint64 room, const CapacityWords& words);

/// "1 cycle", "1,234 cycles"; in the user's language.
QString cyclesText(qint64 count);

/// Whole digits in groups of three, e.g. "6,000" or "-1,600".
QString groupedText(qint64 number, const QString& separator);

/// What separates groups of digits for this user: their locale's sign, but a narrow space where that is the
/// decimal sign here. Nothing in the report.
QString groupSeparator(FactPlace place);

/// Both texts with `between` between them, or the only one that is not empty.
QString joined(const QString& first, const QString& between, const QString& second);

/// Two values that are shown together, with a dot between them and each in its own direction; or the only one
/// that is not empty, as it is.
QString besideEachOther(const QString& first, const QString& second);

/// What replaces a missing value: an en dash.
QString missingValueText();

} // namespace quindle
