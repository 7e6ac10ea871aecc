#include "platform/linux/pictures/Shaping.h"

#include <dlfcn.h>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logShaping, "quindle.statusitem.pictures", QtWarningMsg)

// The part of the library's interface that is used, unchanged since version 0.3. It is declared here so that
// building needs none of the many packages behind the library's header.

using Paragraph = struct raqm;

/// A glyph as the library gives it; lengths in 64ths of a pixel.
struct LibraryGlyph
{
    unsigned index;
    int advanceX;
    int advanceY;
    int offsetX;
    int offsetY;
    std::uint32_t cluster;
    FT_FaceRec_* face;
};

template <typename Function>
bool find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

struct Shaping::Library
{
    Paragraph* (*create)() = nullptr;
    void (*destroy)(Paragraph*) = nullptr;
    bool (*setText)(Paragraph*, const std::uint32_t*, std::size_t) = nullptr;
    bool (*setFace)(Paragraph*, FT_FaceRec_*, std::size_t start, std::size_t length) = nullptr;
    bool (*setLoadFlags)(Paragraph*, int) = nullptr;
    bool (*layOut)(Paragraph*) = nullptr;
    LibraryGlyph* (*glyphs)(Paragraph*, std::size_t*) = nullptr;

    bool load(const char* name)
    {
        // Never unloaded: its own libraries do not survive that.
        void* library = dlopen(name, RTLD_NOW | RTLD_LOCAL);
        return library && find(library, "raqm_create", create) && find(library, "raqm_destroy", destroy) &&
               find(library, "raqm_set_text", setText) &&
               find(library, "raqm_set_freetype_face_range", setFace) &&
               find(library, "raqm_set_freetype_load_flags", setLoadFlags) &&
               find(library, "raqm_layout", layOut) && find(library, "raqm_get_glyphs", glyphs);
    }

    bool fill(Paragraph* paragraph, std::u32string_view text, const std::vector<FontRun>& runs,
              int loadFlags) const
    {
        static_assert(sizeof(char32_t) == sizeof(std::uint32_t));
        if (!setText(paragraph, reinterpret_cast<const std::uint32_t*>(text.data()), text.size()))
            return false;
        for (const FontRun& run : runs) {
            if (!setFace(paragraph, run.face, run.start, run.length))
                return false;
        }
        return setLoadFlags(paragraph, loadFlags) && layOut(paragraph);
    }
};

Shaping::Shaping(const char* library)
    : m_name(library)
{
}

Shaping::~Shaping() = default;

std::optional<std::vector<ShapedGlyph>> Shaping::shape(std::u32string_view text,
                                                       const std::vector<FontRun>& runs, int loadFlags)
{
    // Only now: most titles never need it, and it loads several libraries.
    if (!m_library && !m_isMissing) {
        m_library = std::make_unique<Library>();
        m_isMissing = !m_library->load(m_name);
        if (m_isMissing)
            qCWarning(logShaping) << m_name << "is not installed: letters of some scripts do not join";
    }
    if (m_isMissing || text.empty())
        return std::nullopt;
    const std::unique_ptr<Paragraph, void (*)(Paragraph*)> paragraph(m_library->create(), m_library->destroy);
    if (!paragraph || !m_library->fill(paragraph.get(), text, runs, loadFlags))
        return std::nullopt;
    std::size_t count = 0;
    const LibraryGlyph* glyphs = m_library->glyphs(paragraph.get(), &count);
    std::vector<ShapedGlyph> shaped;
    for (std::size_t i = 0; glyphs && i < count; ++i)
        shaped.push_back({glyphs[i].face, glyphs[i].index, glyphs[i].advanceX / 64.0,
                          glyphs[i].offsetX / 64.0, glyphs[i].offsetY / 64.0});
    return shaped;
}

} // namespace quindle
