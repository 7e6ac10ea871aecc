#pragma once

#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include <QString>
#include <QtGlobal>

#include "charts/LinearScale.h"

/// What a chart over time shows, as plain values. Moments are seconds since the beginning of 1970, UTC.
namespace quindle {

struct ChartPoint
{
    qint64 moment = 0;
    double value = 0;

    bool operator==(const ChartPoint& other) const = default;
};

enum class ChartInk { Wear, Charge };

struct ChartSeries
{
    QString name;
    std::vector<ChartPoint> points; ///< by moment
    std::vector<std::size_t> gaps;  ///< the points after which the line is broken, ascending
    ChartInk ink = ChartInk::Charge;
    bool isQuiet = false; ///< is less prominent, as the past is
    bool endsWithDot = false;
};

struct ShadedSpan
{
    qint64 from = 0;
    qint64 to = 0;

    bool operator==(const ShadedSpan& other) const = default;
};

/// A value to compare with, drawn across the chart.
struct ReferenceLine
{
    double value = 0;
    QString label;
};

/// Where a series leads if it goes on as before, and between which values its points will lie.
struct ChartProjection
{
    ChartPoint from;
    ChartPoint to;
    double lowStart = 0;
    double highStart = 0;
    double lowEnd = 0;
    double highEnd = 0;
    ChartInk ink = ChartInk::Wear;
};

/// One point of one series.
struct ChartReading
{
    std::size_t series = 0;
    std::size_t point = 0;

    bool operator==(const ChartReading& other) const = default;
};

struct ChartContent
{
    AxisSpan moments;               ///< the whole axis, as far as one can zoom out
    std::optional<AxisSpan> values; ///< nothing: as wide as what is seen needs
    bool valuesIncludeZero = false;
    bool readsTimes = false; ///< whether a reading says the time beside the date
    double shortest = 600;   ///< seconds, as far as one can zoom in
    std::vector<ChartSeries> series;
    std::vector<ShadedSpan> shaded; ///< by moment, apart from each other
    double shadedUpTo = INFINITY;   ///< seconds; more of them at once would be a blur
    std::vector<ReferenceLine> lines;
    std::optional<ChartProjection> projection;
    QString emptyText; ///< instead of lines where no series has a point

    /// The texts of a value at the axis, and of a point that is read; without them plain numbers.
    std::function<QString(double value, int decimals)> tickText;
    std::function<QString(const ChartReading& reading)> readingText;
};

/// Whether any series has a point.
bool hasPoints(const ChartContent& content);

const ChartPoint& pointOf(const ChartContent& content, const ChartReading& reading);

QString tickText(const ChartContent& content, double value, int decimals);

/// The text of a reading: the date, and the value below it.
QString readingText(const ChartContent& content, const ChartReading& reading);

} // namespace quindle
