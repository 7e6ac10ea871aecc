#include "menubar/ProgressIndicator.h"

namespace quindle {

void ProgressIndicator::setContentFilters(const ContentFilters& filters)
{
    // Colours are set at every refresh but rarely differ; the same ones do not draw the bar again.
    if (filters == m_contentFilters)
        return;
    m_contentFilters = filters;
    if (m_changed)
        m_changed();
}

} // namespace quindle
