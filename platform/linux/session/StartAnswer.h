#pragma once

#include <QString>

namespace quindle {

/// What a start is to do, so that one process runs.
struct StartAnswer
{
    enum class Outcome {
        First,        ///< run
        AnotherWoken, ///< another one runs and was asked to show itself: end
        GivenUp,      ///< end, and say why
    };

    Outcome outcome = Outcome::First;
    QString fault; ///< of GivenUp, one line
};

} // namespace quindle
