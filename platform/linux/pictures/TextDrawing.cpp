#include "platform/linux/pictures/TextDrawing.h"

namespace quindle {

namespace {

QByteArray coordinates(QPointF point)
{
    return QByteArray::number(point.x(), 'f', 2) + ' ' + QByteArray::number(point.y(), 'f', 2);
}

/// The outline as data of an SVG path, moved and stretched from one rectangle to the other.
QByteArray pathData(const std::vector<OutlineStep>& outline, const QRectF& from, const QRectF& to)
{
    const double across = to.width() / from.width();
    const double down = to.height() / from.height();
    QByteArray data;
    for (const OutlineStep& step : outline) {
        QByteArray points;
        for (const QPointF point : step.points) {
            const QPointF offset = point - from.topLeft();
            points += (points.isEmpty() ? "" : " ") +
                      coordinates(to.topLeft() + QPointF(offset.x() * across, offset.y() * down));
        }
        data += step.command + points;
    }
    return data;
}

} // namespace

QByteArray textDrawing(const std::vector<OutlineStep>& outline, const QRectF& box, const NumberPlace& place)
{
    if (outline.empty() || box.isEmpty())
        return {};
    QByteArray data = pathData(outline, box, place.number);
    if (!place.bolt.isEmpty())
        data += pathData(boltOutline(place.bolt), place.bolt, place.bolt);
    // Hosts replace the colour of this class by that of their panel's text.
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="22" height="22" viewBox="0 0 22 22">
  <style id="current-color-scheme" type="text/css">.ColorScheme-Text {color: #232629}</style>
  <path class="ColorScheme-Text" fill="currentColor" d=")" +
           data + "\"/>\n</svg>\n";
}

} // namespace quindle
