#include "inspect/InventedSerial.h"

#include <algorithm>

namespace quindle {

namespace {

// Four characters of a serial name a computer nearly as well as all of them.
constexpr qsizetype shortestRun = 4;
constexpr qsizetype firstDateCharacter = 2; // counted from 0; three characters
constexpr qsizetype afterDateCharacters = 5;

bool isDated(qsizetype length)
{
    return length == 11 || length == 12;
}

bool hasRunOf(const QString& text, const QString& serial)
{
    for (qsizetype start = 0; start + shortestRun <= serial.size(); ++start)
        if (text.contains(QStringView(serial).mid(start, shortestRun)))
            return true;
    return false;
}

QChar inventedCharacter(QChar character, qsizetype position, int attempt)
{
    const bool isDigit = character >= u'0' && character <= u'9';
    const QString alphabet = isDigit ? QStringLiteral("7041925836") : QStringLiteral("QXJKWZVYHGTB");
    const qsizetype index = position * 5 + attempt;
    const QChar first = alphabet[index % alphabet.size()];
    // A character must not stay the same by chance.
    return first == character ? alphabet[(index + 1) % alphabet.size()] : first;
}

QString candidate(const QString& serial, bool keepsDate, int attempt)
{
    QString invented = serial;
    for (qsizetype position = 0; position < serial.size(); ++position) {
        const bool isDate = position >= firstDateCharacter && position < afterDateCharacters;
        if (!(keepsDate && isDated(serial.size()) && isDate))
            invented[position] = inventedCharacter(serial[position], position, attempt);
    }
    return invented;
}

struct Run
{
    qsizetype start = 0; ///< in the serial
    qsizetype length = 0;
};

/// The longest part of `serial` that `text` begins with.
template <typename Text>
Run longestRun(const Text& text, const Text& serial)
{
    Run longest;
    for (qsizetype start = 0; start < serial.size(); ++start) {
        const qsizetype limit = std::min(serial.size() - start, text.size());
        qsizetype length = 0;
        while (length < limit && text[length] == serial[start + length])
            ++length;
        if (length > longest.length)
            longest = {start, length};
    }
    return longest;
}

constexpr auto always = [](const auto& /*run*/) { return true; };

/// Keys are words, and so are texts in the place of a missing serial ("System Serial Number"): a word that
/// both have names no computer, and without its keys the file could not be played.
bool isNoWord(const QString& run)
{
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const auto isLower = [](QChar character) { return character.isLower(); };
    return std::any_of(run.cbegin(), run.cend(), isDigit) || std::none_of(run.cbegin(), run.cend(), isLower);
}

/// Text and QByteArray alike: each run that `isReplaced` becomes the same part of the invented serial.
template <typename Text, typename IsReplaced>
Text replaced(Text text, const Text& serial, const Text& invented, IsReplaced isReplaced)
{
    for (qsizetype position = 0; position + shortestRun <= text.size(); ++position) {
        const Run run = longestRun(text.mid(position), serial);
        if (run.length < shortestRun || !isReplaced(text.mid(position, run.length)))
            continue;
        text.replace(position, run.length, invented.mid(run.start, run.length));
        position += run.length - 1;
    }
    return text;
}

template <typename IsReplaced>
QString cleanText(QString text, const std::vector<SerialPair>& serials, IsReplaced isReplaced)
{
    for (const SerialPair& pair : serials) {
        // Also a serial that is too short for a run.
        if (text == pair.trueSerial && isReplaced(text))
            return pair.inventedSerial;
        text = replaced(text, pair.trueSerial, pair.inventedSerial, isReplaced);
    }
    return text;
}

QByteArray cleanData(QByteArray data, const std::vector<SerialPair>& serials)
{
    for (const SerialPair& pair : serials) {
        const QByteArray serial = pair.trueSerial.toUtf8();
        // Characters beyond ASCII make lengths differ in bytes; a serial has none in practice.
        const QByteArray invented = pair.inventedSerial.toUtf8().leftJustified(serial.size(), 'X', true);
        data = replaced(data, serial, invented, always);
    }
    return data;
}

QVariant cleanNumber(qint64 number, const std::vector<SerialPair>& serials)
{
    const QString digits = QString::number(number);
    for (const SerialPair& pair : serials)
        // Whole numbers only, and no short ones: a capacity may hold the same digits.
        if (digits.size() >= shortestRun && digits == pair.trueSerial)
            return pair.inventedSerial.toLongLong();
    return number;
}

} // namespace

QString inventedSerial(const QString& serial, bool keepsDate, const QStringList& trueSerials)
{
    constexpr int attempts = 120; // every pairing of the two alphabets
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QString invented = candidate(serial, keepsDate, attempt);
        const auto shares = [&](const QString& other) { return hasRunOf(invented, other); };
        if (std::none_of(trueSerials.cbegin(), trueSerials.cend(), shares))
            return invented;
    }
    // No serial of letters and digits shares a run with this.
    return QString(serial.size(), u'X');
}

QVariant withoutSerials(const QVariant& value, const std::vector<SerialPair>& serials)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return cleanText(value.toString(), serials, always);
    case QMetaType::QByteArray:
        return cleanData(value.toByteArray(), serials);
    case QMetaType::LongLong:
        return cleanNumber(value.toLongLong(), serials);
    case QMetaType::QVariantList: {
        QVariantList list = value.toList();
        for (QVariant& item : list)
            item = withoutSerials(item, serials);
        return list;
    }
    case QMetaType::QVariantMap: {
        QVariantMap clean;
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            clean.insert(cleanText(it.key(), serials, isNoWord), withoutSerials(it.value(), serials));
        return clean;
    }
    default:
        return value;
    }
}

} // namespace quindle
