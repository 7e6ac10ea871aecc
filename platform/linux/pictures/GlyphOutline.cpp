#include "platform/linux/pictures/GlyphOutline.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_BBOX_H
#include FT_OUTLINE_H

namespace quindle {

namespace {

struct Writer
{
    QPointF pen;
    std::vector<OutlineStep>& steps;
    bool isOpen = false;

    QPointF at(const FT_Vector& point) const
    {
        // Outlines count upwards, drawings downwards.
        return pen + QPointF(static_cast<double>(point.x), -static_cast<double>(point.y)) / unitsPerPixel;
    }

    int add(char command, std::vector<QPointF> points)
    {
        steps.push_back({command, std::move(points)});
        return 0;
    }
};

Writer& writer(void* user)
{
    return *static_cast<Writer*>(user);
}

int moveTo(const FT_Vector* to, void* user)
{
    Writer& w = writer(user);
    // A contour only ends with the next one, or with the outline.
    if (std::exchange(w.isOpen, true))
        w.add('Z', {});
    return w.add('M', {w.at(*to)});
}

int lineTo(const FT_Vector* to, void* user)
{
    Writer& w = writer(user);
    return w.add('L', {w.at(*to)});
}

int conicTo(const FT_Vector* control, const FT_Vector* to, void* user)
{
    Writer& w = writer(user);
    return w.add('Q', {w.at(*control), w.at(*to)});
}

int cubicTo(const FT_Vector* first, const FT_Vector* second, const FT_Vector* to, void* user)
{
    Writer& w = writer(user);
    return w.add('C', {w.at(*first), w.at(*second), w.at(*to)});
}

} // namespace

QRectF addOutlineOf(FT_Outline_& outline, QPointF pen, std::vector<OutlineStep>& steps)
{
    Writer w{pen, steps};
    const FT_Outline_Funcs functions{moveTo, lineTo, conicTo, cubicTo, 0, 0};
    FT_BBox box = {};
    if (outline.n_points == 0 || FT_Outline_Decompose(&outline, &functions, &w) != 0 ||
        FT_Outline_Get_BBox(&outline, &box) != 0)
        return {};
    if (w.isOpen)
        w.add('Z', {});
    return QRectF(w.at({box.xMin, box.yMax}), w.at({box.xMax, box.yMin}));
}

} // namespace quindle
