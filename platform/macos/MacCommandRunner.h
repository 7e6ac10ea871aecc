#pragma once

#include "platform/DetachedPrograms.h"

namespace quindle {

/// Runs commands detached from this process. Blanks separate the words of a command, and quotation marks keep
/// them together. A program without a slash is looked for in $PATH, any other path must be absolute.
class MacCommandRunner final : public CommandRunner
{
public:
    bool run(const QString& command, const QStringList& arguments) override;
};

} // namespace quindle
