// What it costs to draw a chart anew after a zoom: ten years of daily points and a month of a sample a
// minute, at one and at two pixels for each unit of length, from the whole span down to an hour.

#include <cmath>

#include <QApplication>
#include <QImage>
#include <benchmark/benchmark.h>

#include "charts/Gaps.h"
#include "charts/TimeSeriesChart.h"

using namespace quindle;

namespace {

constexpr qint64 now = 1'795'000'000;
constexpr qint64 day = 86400;
constexpr qint64 years = 3650 * day;
constexpr qint64 sampleCount = 45'000;

/// A sawtooth of charging and discharging with gaps at night, from a sample a minute at the end to
/// daily points.
ChartSeries samples()
{
    ChartSeries series;
    for (qint64 moment = now - years; moment < now - sampleCount * 60; moment += day)
        series.points.push_back({moment, 60 + 35 * std::sin(static_cast<double>(moment))});
    for (qint64 moment = now - sampleCount * 60; moment < now; moment += 60) {
        const double phase = static_cast<double>(moment % (day / 3)) / (day / 3.0);
        series.points.push_back(
            {moment, 20 + 80 * std::abs(2 * phase - 1) + std::sin(static_cast<double>(moment))});
    }
    series.gaps = gapsBetween(series.points);
    return series;
}

ChartSeries wear()
{
    ChartSeries series;
    series.ink = ChartInk::Wear;
    for (qint64 index = 0; index < 3650; ++index) {
        const auto age = static_cast<double>(index);
        series.points.push_back({now - years + index * day, 95 - age * 0.01 + std::sin(age * 1.7)});
    }
    return series;
}

ChartContent content()
{
    ChartContent made;
    made.moments = {double(now - years), double(now)};
    made.series = {wear(), samples()};
    for (qint64 moment = now - sampleCount * 60; moment < now; moment += day / 3)
        made.shaded.push_back({moment, moment + day / 6});
    made.lines = {{100, QStringLiteral("Design capacity 7,150")}, {80, QStringLiteral("80 %")}};
    return made;
}

/// Zooms in by a step and out again, drawing both.
void zoom(benchmark::State& state, double length)
{
    TimeSeriesChart chart{QStringLiteral("Charge")};
    chart.resize(960, 300);
    chart.setContent(content());
    const auto scale = static_cast<int>(state.range(0));
    QImage picture(chart.size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    bool isIn = false;
    for (auto _ : state) {
        isIn = !isIn;
        chart.setSeen({double(now) - length * (isIn ? 0.8 : 1), double(now)});
        chart.render(&picture);
    }
}

void registerZoom(const char* name, double length)
{
    benchmark::RegisterBenchmark(name, zoom, length)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    registerZoom("zoom/years", years);
    registerZoom("zoom/month", sampleCount * 60);
    registerZoom("zoom/day", day);
    registerZoom("zoom/hour", 3600);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
