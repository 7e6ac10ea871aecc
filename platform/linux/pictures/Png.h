#pragma once

#include <QByteArray>

namespace quindle {

struct Pixels;

/// The picture as a PNG file: eight bits of red, green, blue and alpha, the same bytes for the same picture.
/// Empty for an empty picture.
QByteArray pngOf(const Pixels& pixels);

} // namespace quindle
