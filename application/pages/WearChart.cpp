#include "application/pages/WearChart.h"

#include <algorithm>
#include <cmath>

#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "records/trend/TrendProjection.h"

namespace quindle {

namespace {

constexpr double daySeconds = 86400;
constexpr double shortestDays = 7;
constexpr double leastDays = 60; // seen of a history that has just begun
constexpr double roomShare = 0.02;

QString capacityText(double capacity)
{
    return groupedText(std::llround(capacity), groupSeparator(FactPlace::View));
}

/// What the reading of each series says, by its points.
using ReadingTexts = std::vector<std::vector<QString>>;

QString textOf(const CapacityPoint& point, double reference)
{
    const QString text = besideEachOther(capacityText(point.fullChargeCapacity) + QStringLiteral(" mAh"),
                                         percentText(point.fullChargeCapacity / reference * 100));
    return besideEachOther(text, cyclesText(point.cycleCount));
}

/// The batteries in the order in which they were last seen, so that the newest is the last one.
std::vector<QString> batteriesOf(const std::vector<CapacityPoint>& points)
{
    std::vector<QString> batteries;
    for (auto point = points.rbegin(); point != points.rend(); ++point) {
        if (std::find(batteries.begin(), batteries.end(), point->batteryID) == batteries.end())
            batteries.push_back(point->batteryID);
    }
    std::reverse(batteries.begin(), batteries.end());
    return batteries;
}

void addBattery(ChartContent& content, ReadingTexts& texts, const std::vector<CapacityPoint>& points)
{
    ChartSeries series;
    series.name = translated("WearChart", "Battery %1").arg(content.series.size() + 1);
    series.ink = ChartInk::Wear;
    std::vector<QString> ownTexts;
    const double reference = trendOf(points)->reference;
    for (const CapacityPoint& point : points) {
        series.points.push_back({point.moment, point.fullChargeCapacity});
        ownTexts.push_back(textOf(point, reference));
    }
    content.series.push_back(std::move(series));
    texts.push_back(std::move(ownTexts));
}

void addBatteries(ChartContent& content, const std::vector<CapacityPoint>& points)
{
    ReadingTexts texts;
    for (const QString& battery : batteriesOf(points)) {
        std::vector<CapacityPoint> own;
        std::copy_if(points.begin(), points.end(), std::back_inserter(own),
                     [&](const CapacityPoint& point) { return point.batteryID == battery; });
        addBattery(content, texts, own);
    }
    for (std::size_t older = 0; older + 1 < content.series.size(); ++older)
        // The newest battery is the one in the computer.
        content.series[older].isQuiet = true;
    content.readingText = [texts = std::move(texts)](const ChartReading& reading) {
        return texts[reading.series][reading.point];
    };
}

void addTrend(ChartContent& content, const TrendEstimate& trend)
{
    const QString whole = trend.knowsDesign ? translated("WearChart", "Design capacity %1")
                                            : translated("WearChart", "First full charge %1");
    content.lines = {{trend.reference, whole.arg(capacityText(trend.reference))},
                     {trend.reference * 0.8, QStringLiteral("80 %")}};
    if (const auto ahead = projectionOf(trend)) {
        content.projection = ChartProjection{.from = {ahead->from, ahead->start},
                                             .to = {ahead->to, ahead->end},
                                             .lowStart = ahead->lowestStart,
                                             .highStart = ahead->highestStart,
                                             .lowEnd = ahead->lowestEnd,
                                             .highEnd = ahead->highestEnd,
                                             .ink = ChartInk::Wear};
    }
}

AxisSpan momentsOf(const ChartContent& content, const std::vector<CapacityPoint>& points)
{
    const qint64 last =
        std::max(points.back().moment, content.projection ? content.projection->to.moment : 0);
    const AxisSpan span{static_cast<double>(points.front().moment), static_cast<double>(last)};
    // Two points of the first days would otherwise be as far apart as years.
    const double room = std::max(span.length() * roomShare, (leastDays * daySeconds - span.length()) / 2);
    return {span.from - room, span.to + room};
}

} // namespace

ChartContent wearChart(const std::vector<CapacityPoint>& points, const std::optional<TrendEstimate>& trend)
{
    ChartContent content;
    content.shortest = shortestDays * daySeconds;
    content.emptyText = translated("WearChart", "No snapshots yet: one is saved each day.");
    content.tickText = [](double value, int decimals) {
        return decimals > 0 ? withDecimalSign(QString::number(value, 'f', decimals)) : capacityText(value);
    };
    std::vector<CapacityPoint> known;
    std::copy_if(points.begin(), points.end(), std::back_inserter(known), [](const CapacityPoint& point) {
        // Archives may come from elsewhere, and hold anything.
        return std::isfinite(point.fullChargeCapacity) && point.fullChargeCapacity > 0;
    });
    if (known.empty())
        return content;
    addBatteries(content, known);
    if (trend)
        addTrend(content, *trend);
    content.moments = momentsOf(content, known);
    return content;
}

} // namespace quindle
