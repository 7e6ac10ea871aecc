#pragma once

#include <vector>

#include <QRectF>
#include <QSizeF>

#include "platform/linux/pictures/FontFace.h"
#include "platform/linux/pictures/Pixels.h"

namespace quindle {

/// Where a number is in a square with a side of 22, and the bolt below it; empty without one.
struct NumberPlace
{
    QRectF number; ///< filled by the figures' ink, which is made narrower where it is too wide
    QRectF bolt;
};

/// As large as fits with a margin of 1. `ink` is what the number covers in any size, `pairWidth` what two of
/// its figures do in the same: three of them are as high as two and narrower.
NumberPlace numberPlace(QSizeF ink, double pairWidth, bool hasBolt);

/// The bolt's outline in that rectangle.
std::vector<OutlineStep> boltOutline(const QRectF& box);

/// The bolt as a shape of that size.
Mask boltMask(int width, int height);

} // namespace quindle
