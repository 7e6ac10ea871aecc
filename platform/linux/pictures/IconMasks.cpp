#include "platform/linux/pictures/IconMasks.h"

#include <algorithm>
#include <utility>

#include <QByteArrayView>
#include <QLoggingCategory>

#include "common/FileContents.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logMasks, "quindle.statusitem.pictures", QtWarningMsg)

constexpr int largestSide = 256;
constexpr qint64 mostBytes = qint64{256} * 1024; // a file is a fiftieth of that

/// Takes the word and the one white space after it; empty when there is none.
QByteArrayView takeWord(QByteArrayView& rest)
{
    qsizetype end = 0;
    while (end < rest.size() && rest[end] > ' ' && rest[end] < 127)
        ++end;
    if (end == rest.size())
        return {};
    const QByteArrayView word = rest.first(end);
    rest = rest.sliced(end + 1);
    return word;
}

/// Takes one picture; empty when it is not of the kind that the build writes.
Mask takeMask(QByteArrayView& rest)
{
    if (takeWord(rest) != QByteArrayView("P5"))
        return {};
    const int width = takeWord(rest).toInt();
    const int height = takeWord(rest).toInt();
    const bool isPlain = takeWord(rest) == QByteArrayView("255");
    const qsizetype area = qsizetype{width} * height;
    if (!isPlain || width != height || width < 1 || width > largestSide || rest.size() < area)
        return {};
    Mask mask = blankMask(width, height);
    std::copy_n(rest.begin(), area, mask.coverage.begin());
    rest = rest.sliced(area);
    return mask;
}

Mask inTheMiddle(const Mask& shape, int size)
{
    Mask mask = blankMask(size, size);
    const int margin = (size - shape.width) / 2;
    const int from = std::max(0, margin);
    const int to = std::min(size, margin + shape.width);
    for (int y = from; y < to; ++y) {
        const auto row =
            shape.coverage.begin() + static_cast<std::ptrdiff_t>(y - margin) * shape.width - margin;
        std::copy(row + from, row + to, mask.coverage.begin() + static_cast<std::ptrdiff_t>(y) * size + from);
    }
    return mask;
}

} // namespace

std::vector<Mask> masksOf(const QByteArray& file)
{
    std::vector<Mask> masks;
    QByteArrayView rest(file);
    while (!rest.isEmpty()) {
        Mask mask = takeMask(rest);
        if (mask.isEmpty())
            return {};
        masks.push_back(std::move(mask));
    }
    return masks;
}

const Mask* fittingMask(const std::vector<Mask>& masks, int size)
{
    const Mask* best = nullptr;
    for (const Mask& mask : masks) {
        // The largest that fits, else the smallest.
        const bool isBetter = !best || (best->width > size ? mask.width < best->width
                                                           : mask.width <= size && mask.width > best->width);
        if (isBetter)
            best = &mask;
    }
    return best;
}

IconMasks::IconMasks(QString folder)
    : m_folder(std::move(folder))
{
}

Mask IconMasks::mask(const QString& name, int size)
{
    const Mask* shape = fittingMask(masks(name), size);
    return shape && size > 0 ? inTheMiddle(*shape, size) : Mask();
}

const std::vector<Mask>& IconMasks::masks(const QString& name)
{
    if (name == m_name && !m_masks.empty())
        return m_masks;
    const QString path = m_folder + u'/' + name + QStringLiteral(".pgm");
    m_masks = m_missing.contains(name) ? std::vector<Mask>() : masksOf(fileContents(path, mostBytes).bytes);
    m_name = name;
    if (m_masks.empty() && !m_missing.contains(name)) {
        // Not looked for or logged again: the item asks at every change.
        m_missing.append(name);
        qCWarning(logMasks) << "no usable picture in" << path;
    }
    return m_masks;
}

} // namespace quindle
