#include "inspect/FigureWatch.h"

#include "menubar/TitleTemplate.h"

namespace quindle {

void FigureWatch::setTitleTemplate(const QString& titleTemplate)
{
    if (!showsPassingFigures(titleTemplate))
        m_punctuality.reset();
    else if (!m_punctuality)
        m_punctuality = m_runLoop.keepPunctual();
}

} // namespace quindle
