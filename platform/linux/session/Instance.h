#pragma once

#include <QString>

namespace quindle {

/// Identifies the one process that a session has of a program.
struct InstanceName
{
    QString bus;  ///< the name on the session bus
    QString path; ///< of the object to call there
    QString file; ///< what the names of its files begin with
};

inline InstanceName helperInstance()
{
    return {QStringLiteral("com.fernhollow.Quindle-Helper"), QStringLiteral("/com/fernhollow/Quindle_Helper"),
            QStringLiteral("quindle-helper")};
}

inline InstanceName applicationInstance()
{
    return {QStringLiteral("com.fernhollow.Quindle"), QStringLiteral("/com/fernhollow/Quindle"),
            QStringLiteral("quindle-application")};
}

/// What a new process should do, so that only one keeps running.
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
