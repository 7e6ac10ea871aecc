#pragma once

#include <functional>

#include "menubar/HueFilter.h"

namespace quindle {

/// One of the two bars of the battery view as the rest of the program sees it: it has content filters,
/// whether or not the view has been opened yet. The widget that draws it (`menuIndicator`) follows it.
class ProgressIndicator
{
public:
    const ContentFilters& contentFilters() const { return m_contentFilters; }

    /// Replaces the filters; the observer hears of it only when they are different ones.
    void setContentFilters(const ContentFilters& filters);

    /// The one observer; an empty function for none.
    void setObserver(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    ContentFilters m_contentFilters;
    std::function<void()> m_changed;
};

} // namespace quindle
