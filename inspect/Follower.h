#pragma once

#include <functional>
#include <optional>

#include "inspect/BarLines.h"
#include "inspect/FigureWatch.h"
#include "inspect/Inspection.h"

namespace quindle {

class Computer;

/// Writes the state of a bar once, and anew after each refresh of the helper that changed it.
class Follower
{
public:
    /// Takes whole lines with their line ends. The header comes with the first one.
    using Write = std::function<void(const QByteArray& lines)>;

    /// Launches the helper and writes its first state.
    Follower(Computer& computer, bool isDemo, BarFormat format, Write write);

private:
    void writeIfChanged();

    Computer& m_computer;
    BarFormat m_format;
    Write m_write;
    Inspection m_inspection;
    FigureWatch m_figureWatch;
    std::optional<QByteArray> m_lastLine;
};

} // namespace quindle
