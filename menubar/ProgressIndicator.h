#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "menubar/BarColours.h"

namespace quindle {

/// An image filter ("CIHueAdjust") that turns every hue by an angle and leaves greys, black and white
/// unchanged (view/HueAdjust.h does so).
class HueFilter
{
public:
    HueFilter() = default;

    /// The filter that gives a bar `colour`; its angle is still to be set.
    explicit HueFilter(BarColour colour)
        : m_colour(colour)
    {
    }

    /// Which of the bars' three colours it gives; nothing for another filter.
    std::optional<BarColour> colour() const { return m_colour; }

    /// The angle in radians; any number, whole turns make no difference. 0 at first.
    double inputAngle() const { return m_inputAngle; }
    void setInputAngle(double radians) { m_inputAngle = radians; }

private:
    std::optional<BarColour> m_colour;
    double m_inputAngle = 0;
};

/// The filters that a view is drawn through, first to last. Both bars share one object for each colour.
using ContentFilters = std::vector<std::shared_ptr<HueFilter>>;

/// One of the two bars of the battery view as the rest of the program sees it: it has content filters,
/// whether or not the view has been opened yet. The widget that draws it (`menuIndicator`) follows it.
class ProgressIndicator
{
public:
    const ContentFilters& contentFilters() const { return m_contentFilters; }

    /// Replaces the filters; the observer is called only when they are different ones.
    void setContentFilters(const ContentFilters& filters);

    /// The one observer; an empty function for none.
    void setObserver(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    ContentFilters m_contentFilters;
    std::function<void()> m_changed;
};

} // namespace quindle
