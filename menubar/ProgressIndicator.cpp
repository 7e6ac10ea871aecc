#include "menubar/ProgressIndicator.h"

namespace quindle {

void ProgressIndicator::setContentFilters(const ContentFilters& filters)
{
    // Colours are set at every refresh, and rarely to others; the bar is not drawn again for the same.
    if (filters == m_contentFilters)
        return;
    m_contentFilters = filters;
    if (m_changed)
        m_changed();
}

} // namespace quindle
