#pragma once

#include <string_view>

#include <QString>

namespace quindle {

/// Whether the glyphs of that text depend on their neighbours, or stand in another order than its characters:
/// it is written from right to left, joins or stacks letters, or has accents of their own. Such a text put
/// together glyph by glyph would be wrong; any other comes out right.
bool needsShaping(std::u32string_view text);

/// The characters that a drawn line has something of, whole ones composed of their parts where there are
/// such. Those that only say how their neighbours are to be drawn are left where the text needs shaping.
std::u32string drawnCharacters(const QString& text);

} // namespace quindle
