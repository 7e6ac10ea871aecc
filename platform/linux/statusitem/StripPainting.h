#pragma once

#include <functional>

class QImage;
class QPainter;

namespace quindle {

/// Lets `paint` draw the whole of a small picture several times, each time clipped to the next few of its
/// rows. Qt shares a fill of more than 95 spans among a pool of threads, which stay for half a minute, cost
/// memory and wake the processor when they end; a strip has fewer spans. The pixels are the same.
void paintInStrips(QImage& image, const std::function<void(QPainter&)>& paint);

} // namespace quindle
