#include <algorithm>
#include <cstring>

#include "common/NumberTexts.h"
#include "menubar/TitleTemplate.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

namespace {

/// What the values are made of; the template follows it.
struct Figures
{
    double temperature;
    double stateOfCharge;
    double wattThroughput;
    qint64 amperage;
    qint64 cycleCount;
    qint64 minutes;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Figures figures{};
    if (size < sizeof figures)
        return 0;
    std::memcpy(&figures, data, sizeof figures);
    TitleValues values;
    values.temperature = figures.temperature;
    values.isCharging = figures.amperage > 0;
    values.timeRemaining = figures.minutes < 0 ? QString() : formatMinutes(figures.minutes);
    values.stateOfCharge = figures.stateOfCharge;
    values.wattThroughput = figures.wattThroughput;
    values.amperage = figures.amperage;
    values.cycleCount = figures.cycleCount;

    const QString text = QString::fromUtf8(fuzzBytes(data + sizeof figures, size - sizeof figures));
    const QString title = titleFromTemplate(text, values);
    constexpr qsizetype longestTemplate = 4096;
    expect(text.size() > longestTemplate || text.contains(u'%') || title == text);
    expect(!title.contains(QStringLiteral("%l")) && !title.contains(QStringLiteral("%mA")));
    constexpr qsizetype longestNumber = 330;
    expect(title.size() <= std::min(text.size(), longestTemplate) * longestNumber);
    return 0;
}
