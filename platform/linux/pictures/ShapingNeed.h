#pragma once

#include <string_view>

#include <QString>

namespace quindle {

/// Whether the glyphs of that text depend on their neighbours or are in another order than its characters: it
/// is written from right to left, joins or stacks letters, or has separate accents. Such a text would be
/// wrong if drawn glyph by glyph; any other comes out right.
bool needsShaping(std::u32string_view text);

/// The visible characters of a line, composed of their parts where possible. Those that only control how
/// their neighbours are drawn stay where the text needs shaping.
std::u32string drawnCharacters(const QString& text);

} // namespace quindle
