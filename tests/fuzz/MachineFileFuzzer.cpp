#include "platform/recorded/MachineFile.h"
#include "platform/recorded/RecordedComputer.h"
#include "plist/PropertyList.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto root = propertyListFromBytes(fuzzBytes(data, size));
    if (!root)
        return 0;
    const MachineResult result = machineFromPropertyList(*root, QStringLiteral("/machine.plist"));
    if (const auto* refusal = std::get_if<MachineRefusal>(&result)) {
        expect(!refusal->line.contains(u'\n'));
        return 0;
    }
    const auto& machine = std::get<Machine>(result);
    RecordedComputer computer(machine.keys);
    for (const MachineStep& step : machine.steps)
        computer.enter(step);
    return 0;
}
