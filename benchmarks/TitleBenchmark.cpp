// What a title costs, by the length of its template: plain text, and nothing but placeholders.

#include <benchmark/benchmark.h>

#include <QString>

#include "menubar/TitleTemplate.h"

using namespace quindle;

namespace {

constexpr int shortest = 16;
constexpr int longest = 65536;

void title(benchmark::State& state, const QString& piece)
{
    const auto length = state.range(0);
    const QString titleTemplate = piece.repeated(length / piece.size());
    const TitleValues values{.temperature = 31.4,
                             .isCharging = false,
                             .timeRemaining = QStringLiteral("2:47"),
                             .stateOfCharge = 64.0,
                             .wattThroughput = 11.8,
                             .amperage = -982,
                             .cycleCount = 213};
    for (auto _ : state)
        benchmark::DoNotOptimize(titleFromTemplate(titleTemplate, values));
    state.SetComplexityN(length);
}

void registerTitles(const char* name, const QString& piece)
{
    benchmark::RegisterBenchmark(name, title, piece)
        ->RangeMultiplier(4)
        ->Range(shortest, longest)
        ->Complexity(benchmark::oN);
}

} // namespace

int main(int argc, char** argv)
{
    registerTitles("text", QStringLiteral("battery "));
    registerTitles("placeholders", QStringLiteral("%p%r%w%mA%t%l%s "));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
