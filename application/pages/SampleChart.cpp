#include "application/pages/SampleChart.h"

#include <algorithm>
#include <cmath>

#include "charts/Gaps.h"
#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "samples/Sample.h"

namespace quindle {

namespace {

constexpr double daysOfShade = 32; // stripes of more of them cannot be distinguished
constexpr double recent = 600;
constexpr double sameCharge = 1; // percent

bool rests(const Sample& sample)
{
    return sample.state != SampleState::Charging && sample.state != SampleState::Discharging;
}

bool isRest(const Sample& before, const Sample& after)
{
    return rests(before) && rests(after) && std::abs(before.charge - after.charge) < sameCharge;
}

QString wordOf(SampleState state)
{
    switch (state) {
    case SampleState::Charging:
        return translated("SampleChart", "charging");
    case SampleState::Discharging:
        return translated("SampleChart", "discharging");
    case SampleState::Full:
        return translated("SampleChart", "full");
    case SampleState::Unknown:
        break;
    }
    return {};
}

QString textOf(const Sample& sample)
{
    const QString power = sample.power ? wattsText(std::abs(*sample.power)) : QString();
    const QString text = besideEachOther(percentText(sample.charge), power);
    return besideEachOther(text, wordOf(sample.state));
}

bool hasQuantity(const Sample& sample, SampleQuantity quantity)
{
    return quantity == SampleQuantity::Charge ? std::isfinite(sample.charge)
                                              : sample.power && std::isfinite(*sample.power);
}

ChartSeries seriesOf(const std::vector<Sample>& samples, SampleQuantity quantity, double end)
{
    ChartSeries series;
    series.name = quantity == SampleQuantity::Charge ? translated("SampleChart", "Charge")
                                                     : translated("SampleChart", "Power");
    series.points.reserve(samples.size());
    for (const Sample& sample : samples) {
        const double value = quantity == SampleQuantity::Charge ? sample.charge : std::abs(*sample.power);
        series.points.push_back({sample.moment, value});
    }
    series.gaps = gapsOf(samples);
    series.endsWithDot = !samples.empty() && end - static_cast<double>(samples.back().moment) <= recent;
    return series;
}

} // namespace

std::vector<std::size_t> gapsOf(const std::vector<Sample>& samples)
{
    std::vector<ChartPoint> points;
    points.reserve(samples.size());
    for (const Sample& sample : samples)
        points.push_back({sample.moment, sample.charge});
    std::vector<std::size_t> gaps = gapsBetween(points);
    // A battery that rests gives no new samples for hours; that is not a gap.
    std::erase_if(gaps, [&](std::size_t gap) { return isRest(samples[gap], samples[gap + 1]); });
    return gaps;
}

std::vector<ShadedSpan> chargingSpans(const std::vector<Sample>& samples,
                                      const std::vector<std::size_t>& gaps)
{
    std::vector<ShadedSpan> spans;
    auto gap = gaps.begin();
    bool goesOn = false;
    for (std::size_t index = 0; index < samples.size(); ++index) {
        const Sample& sample = samples[index];
        const bool isCharging = sample.state == SampleState::Charging;
        if (goesOn)
            spans.back().to = sample.moment;
        else if (isCharging)
            spans.push_back({sample.moment, sample.moment});
        goesOn = isCharging;
        if (gap != gaps.end() && *gap == index) {
            goesOn = false;
            ++gap;
        }
    }
    return spans;
}

ChartContent sampleChart(const std::vector<Sample>& samples, SampleQuantity quantity, AxisSpan moments,
                         qint64 ownSince)
{
    ChartContent content;
    content.moments = moments;
    content.readsTimes = true;
    content.shadedUpTo = daysOfShade * 86400;
    content.emptyText = translated("SampleChart", "Nothing was recorded in this time.");
    if (quantity == SampleQuantity::Charge)
        // Always the whole scale, so that two days can be compared.
        content.values = AxisSpan{0, 100};
    content.valuesIncludeZero = true;
    std::vector<Sample> shown;
    std::copy_if(samples.begin(), samples.end(), std::back_inserter(shown),
                 [quantity](const Sample& sample) { return hasQuantity(sample, quantity); });
    content.shaded = chargingSpans(shown, gapsOf(shown));
    const auto own = std::find_if(shown.begin(), shown.end(),
                                  [ownSince](const Sample& sample) { return sample.moment >= ownSince; });
    // A series of its own: it is pale, and a reading says where it is from.
    if (own != shown.begin()) {
        content.series.push_back(seriesOf({shown.begin(), own}, quantity, INFINITY));
        content.series.back().isQuiet = true;
    }
    const std::size_t first = content.series.size();
    const auto before = static_cast<std::size_t>(own - shown.begin());
    content.series.push_back(seriesOf({own, shown.end()}, quantity, moments.to));
    content.readingText = [shown = std::move(shown), first, before](const ChartReading& reading) {
        return reading.series < first
                   ? besideEachOther(textOf(shown[reading.point]), translated("SampleChart", "from UPower"))
                   : textOf(shown[before + reading.point]);
    };
    return content;
}

} // namespace quindle
