#include "application/commands/SampleInput.h"

#include "samples/Sample.h"

namespace quindle {

bool SampleInput::readSome()
{
    constexpr std::size_t most = 10'000;
    constexpr qint64 longestLine = 256; // bytes; a longer line is not a sample
    m_samples.clear();
    while (m_samples.size() < most) {
        const QByteArray line = m_input.readLine(longestLine);
        if (line.isEmpty())
            break;
        if (const auto sample = sampleFromLine(line))
            m_samples.push_back(*sample);
        else
            ++m_damagedLines;
    }
    return !m_samples.empty();
}

} // namespace quindle
