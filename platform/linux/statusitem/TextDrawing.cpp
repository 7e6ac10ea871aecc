#include "platform/linux/statusitem/TextDrawing.h"

#include <algorithm>

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

namespace quindle {

namespace {

constexpr double side = 22.0;
constexpr double margin = 1.0;

QPainterPath outline(const QString& text)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(100);
    font.setWeight(QFont::DemiBold);
    QPainterPath path;
    path.addText(QPointF(), font, text);
    const QRectF inked = path.boundingRect();
    const double room = side - 2 * margin;
    const double scale = std::min(room / std::max(1.0, inked.width()), room / std::max(1.0, inked.height()));
    QTransform fitted;
    fitted.translate(side / 2, side / 2)
        .scale(scale, scale)
        .translate(-inked.center().x(), -inked.center().y());
    return fitted.map(path);
}

QByteArray commandOf(QPainterPath::ElementType type)
{
    switch (type) {
    case QPainterPath::MoveToElement:
        return "M";
    case QPainterPath::LineToElement:
        return "L";
    case QPainterPath::CurveToElement:
        return "C";
    case QPainterPath::CurveToDataElement:
        break;
    }
    return " ";
}

/// A row of an icon crosses a handful of outlines, each of which is a span or two.
constexpr int rowsOfStrip = 8;

} // namespace

QByteArray textDrawing(const QString& text)
{
    QByteArray data;
    const QPainterPath path = outline(text);
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        data += commandOf(element.type) + QByteArray::number(element.x, 'f', 2) + ' ' +
                QByteArray::number(element.y, 'f', 2);
    }
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="22" height="22" viewBox="0 0 22 22">
  <style id="current-color-scheme" type="text/css">.ColorScheme-Text {color: #232629}</style>
  <path class="ColorScheme-Text" fill="currentColor" d=")" +
           data + "\"/>\n</svg>\n";
}

void paintInStrips(QImage& image, const std::function<void(QPainter&)>& paint)
{
    QPainter painter(&image);
    for (int top = 0; top < image.height(); top += rowsOfStrip) {
        painter.setClipRect(0, top, image.width(), rowsOfStrip);
        paint(painter);
    }
}

} // namespace quindle
