#include "menubar/ProgressIndicator.h"

namespace quindle {

void ProgressIndicator::setContentFilters(const ContentFilters& filters)
{
    if (filters == m_contentFilters)
        return;
    m_contentFilters = filters;
    if (m_changed)
        m_changed();
}

} // namespace quindle
