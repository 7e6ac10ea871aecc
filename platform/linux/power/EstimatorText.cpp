#include "platform/linux/power/EstimatorText.h"

#include <cmath>

#include <QList>

namespace quindle {

namespace {

using Memory = TimeEstimator::Memory;
using Sample = TimeEstimator::Sample;
using std::chrono::milliseconds;

constexpr int allDigits = 17; // reads back to the same double, so both processes estimate the same
constexpr qsizetype wordsOfState = 2;
constexpr qsizetype wordsOfSample = 4;
const QByteArray notKnown = QByteArrayLiteral("-");

QByteArray wordOf(std::optional<double> number)
{
    return number ? QByteArray::number(*number, 'g', allDigits) : notKnown;
}

/// False for a word that is neither a number nor the sign for none.
bool read(const QByteArray& word, std::optional<double>& number)
{
    if (word == notKnown)
        return true;
    bool isNumber = false;
    number = word.toDouble(&isNumber);
    return isNumber && std::isfinite(*number);
}

QByteArray lineOf(const Sample& sample)
{
    const QByteArrayList words{QByteArray::number(qint64{sample.time.count()}), wordOf(sample.charge),
                               wordOf(sample.fullCharge), wordOf(sample.current)};
    return words.join(' ') + '\n';
}

std::optional<Sample> sampleFrom(const QByteArray& line)
{
    const QByteArrayList words = line.split(' ');
    if (words.size() != wordsOfSample)
        return std::nullopt;
    bool isNumber = false;
    Sample sample;
    sample.time = milliseconds(words[0].toLongLong(&isNumber));
    const bool isSample = isNumber && read(words[1], sample.charge) && read(words[2], sample.fullCharge) &&
                          read(words[3], sample.current);
    return isSample ? std::optional(sample) : std::nullopt;
}

bool readState(const QByteArray& line, Memory& memory)
{
    const QByteArrayList words = line.split(' ');
    const QByteArrayList directions{"idle", "charging", "discharging"};
    if (words.size() != wordsOfState || !directions.contains(words[1]))
        return false;
    memory.isPlugged = words[0] == "plugged";
    memory.direction = static_cast<TimeEstimator::Direction>(directions.indexOf(words[1]));
    return memory.isPlugged || words[0] == "unplugged";
}

QByteArray stateLine(const Memory& memory)
{
    const QByteArray plug = memory.isPlugged ? "plugged " : "unplugged ";
    switch (memory.direction) {
    case TimeEstimator::Direction::Charging:
        return plug + "charging\n";
    case TimeEstimator::Direction::Discharging:
        return plug + "discharging\n";
    case TimeEstimator::Direction::Idle:
        break;
    }
    return plug + "idle\n";
}

} // namespace

QByteArray estimatorText(const TimeEstimator::Memory& memory)
{
    if (memory.samples.empty())
        return {};
    // The change of the charge is counted from the first sample, however old it is.
    QByteArray text = stateLine(memory) + lineOf(memory.samples.front());
    const milliseconds end = memory.samples.back().time;
    for (auto sample = memory.samples.begin() + 1; sample != memory.samples.end(); ++sample)
        if (end - sample->time <= TimeEstimator::currentWindow)
            text += lineOf(*sample);
    return text;
}

std::optional<TimeEstimator::Memory> estimatorMemoryFrom(const QByteArray& text)
{
    QByteArrayList lines = text.split('\n');
    Memory memory;
    if (!lines.takeLast().isEmpty() || lines.isEmpty() || !readState(lines.takeFirst(), memory))
        return std::nullopt;
    for (const QByteArray& line : std::as_const(lines)) {
        const auto sample = sampleFrom(line);
        if (!sample || (!memory.samples.empty() && sample->time < memory.samples.back().time))
            return std::nullopt;
        memory.samples.push_back(*sample);
    }
    return memory;
}

} // namespace quindle
