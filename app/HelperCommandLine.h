#pragma once

#include <QString>
#include <QStringList>

namespace quindle {

/// What one call of quindle-helper asks for. There is nothing to choose: it runs, or answers what every
/// program answers.
struct HelperCommandLine
{
    enum class Call { Run, Help, Version };

    Call call = Call::Run;
    QString fault; ///< why the call is wrong usage, one line; empty when it is right
};

/// Reads the arguments (without the program's name). Of several the first that is known counts.
HelperCommandLine parseHelperCommandLine(const QStringList& arguments);

/// What --help prints.
QString helperHelpText();

} // namespace quindle
