#include "charts/ChartContent.h"

#include <algorithm>

#include "common/NumberTexts.h"
#include "common/Translation.h"

namespace quindle {

bool hasPoints(const ChartContent& content)
{
    return std::any_of(content.series.begin(), content.series.end(),
                       [](const ChartSeries& series) { return !series.points.empty(); });
}

const ChartPoint& pointOf(const ChartContent& content, const ChartReading& reading)
{
    return content.series[reading.series].points[reading.point];
}

QString tickText(const ChartContent& content, double value, int decimals)
{
    return content.tickText ? content.tickText(value, decimals) : withDecimalSign(fixedText(value, decimals));
}

QString readingText(const ChartContent& content, const ChartReading& reading)
{
    return content.readingText ? content.readingText(reading) : shortestText(pointOf(content, reading).value);
}

} // namespace quindle
