#pragma once

#include <vector>

#include <QIODevice>

#include "samples/Sample.h"

namespace quindle {

/// Samples as lines of a stream, read some at a time.
class SampleInput
{
public:
    explicit SampleInput(QIODevice& input)
        : m_input(input)
    {
    }

    /// Reads up to 10,000 samples. False when there are none any more.
    bool readSome();

    /// Those that were read last.
    const std::vector<Sample>& samples() const { return m_samples; }

    /// How many lines were no samples so far.
    qint64 damagedLines() const { return m_damagedLines; }

private:
    QIODevice& m_input;
    std::vector<Sample> m_samples;
    qint64 m_damagedLines = 0;
};

} // namespace quindle
