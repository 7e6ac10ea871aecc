#include "platform/linux/pictures/TextDrawing.h"

#include <algorithm>

namespace quindle {

namespace {

constexpr double side = 22.0;
constexpr double margin = 1.0;

QByteArray coordinates(QPointF point)
{
    return QByteArray::number(point.x(), 'f', 2) + ' ' + QByteArray::number(point.y(), 'f', 2);
}

} // namespace

QByteArray textDrawing(const std::vector<OutlineStep>& outline, const QRectF& box)
{
    if (outline.empty() || box.isEmpty())
        return {};
    const double room = side - 2 * margin;
    const double scale = room / std::max(box.width(), box.height());
    QByteArray data;
    for (const OutlineStep& step : outline) {
        QByteArray points;
        for (const QPointF point : step.points)
            points += (points.isEmpty() ? "" : " ") +
                      coordinates((point - box.center()) * scale + QPointF(side / 2, side / 2));
        data += step.command + points;
    }
    // Hosts replace the colour of this class by that of their panel's text.
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="22" height="22" viewBox="0 0 22 22">
  <style id="current-color-scheme" type="text/css">.ColorScheme-Text {color: #232629}</style>
  <path class="ColorScheme-Text" fill="currentColor" d=")" +
           data + "\"/>\n</svg>\n";
}

} // namespace quindle
