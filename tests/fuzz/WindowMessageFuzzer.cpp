#include "platform/MessageLink.h"
#include "platform/linux/power/EstimatorText.h"
#include "remote/WindowMessage.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = fuzzBytes(data, size);
    if (const auto message = decoded(bytes)) {
        const QByteArray written = encoded(*message);
        expect(written.size() <= MessageLink::longestMessage);
        const auto again = decoded(written);
        expect(again && (*again == *message || again->data.isEmpty()));
    }
    if (const auto memory = estimatorMemoryFrom(bytes)) {
        TimeEstimator estimator;
        estimator.setMemory(*memory);
        const auto empty = estimator.minutesUntilEmpty();
        const auto full = estimator.minutesUntilFull();
        expect(!empty || !full);
        expect(memory->samples.empty() || estimatorMemoryFrom(estimatorText(*memory)));
    }
    return 0;
}
