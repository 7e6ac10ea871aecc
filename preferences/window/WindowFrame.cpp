#include "preferences/window/WindowFrame.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <QStringList>

namespace quindle {

namespace {

constexpr int farthest = 1000000; // keeps sums of coordinates far from overflow

QString rectText(const QRect& rect)
{
    return QStringLiteral("%1 %2 %3 %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

qint64 commonArea(const QRect& one, const QRect& other)
{
    const QRect common = one & other;
    return qint64{common.width()} * common.height();
}

/// The nearer edge wins where both cannot be kept.
int shifted(int start, int length, int from, int size)
{
    return std::max(from, std::min(start, from + size - length));
}

QRect movedInto(const QRect& frame, const QRect& screen)
{
    const QPoint place(shifted(frame.x(), frame.width(), screen.x(), screen.width()),
                       shifted(frame.y(), frame.height(), screen.y(), screen.height()));
    return {place, frame.size()};
}

} // namespace

QString frameText(const WindowFrame& frame)
{
    return rectText(frame.frame) + QLatin1Char(' ') + rectText(frame.screen);
}

std::optional<WindowFrame> frameFromText(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::array<int, 8> numbers{};
    if (words.size() != static_cast<qsizetype>(numbers.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = words.at(static_cast<qsizetype>(i)).toInt(&isNumber);
        // The text may come from anywhere, and what is computed from it must not overflow.
        if (!isNumber || numbers[i] < -farthest || numbers[i] > farthest)
            return std::nullopt;
    }
    const WindowFrame frame{QRect(numbers[0], numbers[1], numbers[2], numbers[3]),
                            QRect(numbers[4], numbers[5], numbers[6], numbers[7])};
    if (frame.frame.isEmpty() || frame.screen.isEmpty())
        return std::nullopt;
    return frame;
}

QRect placedFrame(const WindowFrame& saved, const std::vector<QRect>& screens)
{
    if (screens.empty())
        return saved.frame;
    const auto best =
        std::max_element(screens.begin(), screens.end(), [&saved](const QRect& one, const QRect& other) {
            return commonArea(saved.frame, one) < commonArea(saved.frame, other);
        });
    // Onto the screen that shows most of it, which need not be the one it was saved on.
    if (saved.frame.intersects(*best))
        return movedInto(saved.frame, *best);
    // The same place on the first screen as it had on the one that is gone.
    const QPoint offset = screens.front().topLeft() - saved.screen.topLeft();
    return movedInto(saved.frame.translated(offset), screens.front());
}

QRect centredFrame(const QSize& size, const QRect& screen)
{
    const QPoint place(screen.x() + (screen.width() - size.width()) / 2,
                       screen.y() + (screen.height() - size.height()) / 2);
    return movedInto(QRect(place, size), screen);
}

} // namespace quindle
