#include "samples/Sample.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quindle {

namespace {

constexpr qint64 lastMoment = 253'402'300'799; // the end of the year 9999
constexpr double fullCharge = 100;
constexpr int decimals = 2;
constexpr qsizetype mostWholeDigits = 12;
constexpr QByteArrayView notKnown("-");

struct StateName
{
    SampleState state = SampleState::Unknown;
    QByteArrayView name;
};

constexpr std::array<StateName, 4> stateNames{{
    {SampleState::Discharging, "discharging"},
    {SampleState::Charging, "charging"},
    {SampleState::Full, "full"},
    {SampleState::Unknown, "unknown"},
}};

/// Without zeros at its end: "12.5", "12", "0".
QByteArray shortDecimal(double value)
{
    QByteArray text = QByteArray::number(value, 'f', decimals);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    // A small negative figure rounds to it.
    return text == "-0" ? QByteArray("0") : text;
}

bool isDigits(QByteArrayView text, qsizetype most)
{
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    return !text.isEmpty() && text.size() <= most && std::all_of(text.begin(), text.end(), isDigit);
}

std::optional<qint64> momentFrom(QByteArrayView word)
{
    if (!isDigits(word, mostWholeDigits))
        return std::nullopt;
    const qint64 moment = word.toByteArray().toLongLong();
    return moment <= lastMoment ? std::optional(moment) : std::nullopt;
}

/// Stricter than the library, which also takes "1e3", "inf" and blanks.
std::optional<double> decimalFrom(QByteArrayView word)
{
    const QByteArrayView unsignedWord = word.startsWith('-') ? word.sliced(1) : word;
    const qsizetype point = unsignedWord.indexOf('.');
    const QByteArrayView whole = point < 0 ? unsignedWord : unsignedWord.first(point);
    if (!isDigits(whole, mostWholeDigits) ||
        (point >= 0 && !isDigits(unsignedWord.sliced(point + 1), decimals)))
        return std::nullopt;
    return word.toByteArray().toDouble();
}

/// The four words of a line; the last is empty where there are fewer.
std::array<QByteArrayView, 4> wordsOf(QByteArrayView line)
{
    std::array<QByteArrayView, 4> words;
    for (std::size_t index = 0; index + 1 < words.size(); ++index) {
        const qsizetype end = line.indexOf(' ');
        if (end < 0)
            // Fewer words: the last one, a state's name, stays empty.
            return {};
        words.at(index) = line.first(end);
        line = line.sliced(end + 1);
    }
    words.back() = line; // with more words no state's name
    return words;
}

} // namespace

QByteArrayView sampleStateName(SampleState state)
{
    const auto found = std::find_if(stateNames.begin(), stateNames.end(),
                                    [state](const StateName& entry) { return entry.state == state; });
    return found == stateNames.end() ? stateNames.back().name : found->name;
}

std::optional<SampleState> sampleStateNamed(QByteArrayView name)
{
    const auto found = std::find_if(stateNames.begin(), stateNames.end(),
                                    [name](const StateName& entry) { return entry.name == name; });
    return found == stateNames.end() ? std::nullopt : std::optional(found->state);
}

QByteArray sampleLine(const Sample& sample)
{
    const bool knowsPower = sample.power && std::isfinite(*sample.power);
    const QByteArray power = knowsPower ? shortDecimal(*sample.power) : notKnown.toByteArray();
    return QByteArray::number(sample.moment) + ' ' + shortDecimal(sample.charge) + ' ' + power + ' ' +
           sampleStateName(sample.state).toByteArray() + '\n';
}

std::optional<Sample> sampleFromLine(QByteArrayView line)
{
    const auto words = wordsOf(line.endsWith('\n') ? line.chopped(1) : line);
    const auto moment = momentFrom(words[0]);
    const auto charge = decimalFrom(words[1]);
    const auto power = decimalFrom(words[2]);
    const auto state = sampleStateNamed(words[3]);
    // The lines come from another process, which may be of another version.
    const bool isCharge = charge && *charge >= 0 && *charge <= fullCharge;
    if (!moment || !isCharge || !state || (!power && words[2] != notKnown))
        return std::nullopt;
    return Sample{.moment = *moment, .charge = *charge, .power = power, .state = *state};
}

} // namespace quindle
