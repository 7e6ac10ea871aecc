#pragma once

#include "platform/RunLoop.h"

class QString;

namespace quindle {

/// Keeps timers punctual while a title shows figures that change from one reading of the battery to the next.
class FigureWatch
{
public:
    /// The loop must outlive it.
    explicit FigureWatch(RunLoop& runLoop)
        : m_runLoop(runLoop)
    {
    }

    /// The template that is shown from now on.
    void setTitleTemplate(const QString& titleTemplate);

private:
    RunLoop& m_runLoop;
    Punctuality m_punctuality;
};

} // namespace quindle
