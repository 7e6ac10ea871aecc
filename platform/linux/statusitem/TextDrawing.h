#pragma once

#include <functional>

#include <QByteArray>

class QString;
class QImage;
class QPainter;

namespace quindle {

/// The text as an SVG drawing of 22 by 22 that it fills, in the panel's font. A host that colours drawings
/// takes the colour by the class "ColorScheme-Text" or, from the file's name, for all of it.
QByteArray textDrawing(const QString& text);

/// Lets `paint` draw the whole of a small picture several times, each time clipped to the next few of its
/// rows. Qt shares a fill of more than 95 spans among a pool of threads, which stay for half a minute, cost
/// memory and wake the processor when they end; a strip has fewer spans. The pixels are the same.
void paintInStrips(QImage& image, const std::function<void(QPainter&)>& paint);

} // namespace quindle
