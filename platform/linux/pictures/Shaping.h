#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

struct FT_FaceRec_;

namespace quindle {

/// Characters that one font is used for.
struct FontRun
{
    FT_FaceRec_* face = nullptr;
    std::size_t start = 0;
    std::size_t length = 0;
};

/// A glyph as it comes in a line, from left to right; lengths in pixels, y upwards.
struct ShapedGlyph
{
    FT_FaceRec_* face = nullptr;
    std::uint32_t glyph = 0;
    double advance = 0.0;
    double right = 0.0; ///< its distance from the pen
    double up = 0.0;
};

/// Lays out a line in any script, with a library that is loaded when it is first needed and then stays. It
/// need not be installed.
class Shaping
{
public:
    /// The library is looked for where the system has its own.
    explicit Shaping(const char* library = "libraqm.so.0");
    ~Shaping();

    /// The glyphs of the text, whose characters all belong to one of the runs, in fonts that have been given
    /// their size. `loadFlags` are the font library's. Nothing, and logged once, without the library.
    std::optional<std::vector<ShapedGlyph>> shape(std::u32string_view text, const std::vector<FontRun>& runs,
                                                  int loadFlags);

private:
    struct Library;

    const char* m_name;
    std::unique_ptr<Library> m_library;
    bool m_isMissing = false;
};

} // namespace quindle
