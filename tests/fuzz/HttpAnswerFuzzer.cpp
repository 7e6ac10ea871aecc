#include "platform/linux/HttpAnswer.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qsizetype limit = 1000;
    const QByteArray bytes = fuzzBytes(data, size);
    for (const bool isAtEnd : {false, true}) {
        const HttpReading reading = readHttpAnswer(bytes, isAtEnd, limit);
        expect(!isAtEnd || reading.state != HttpReading::State::Incomplete);
        expect(reading.answer.body.size() <= limit);
    }
    return 0;
}
