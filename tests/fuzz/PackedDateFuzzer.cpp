#include <cstring>

#include "battery/ManufactureDate.h"
#include "common/AgeText.h"
#include "tests/fuzz/FuzzInput.h"

using namespace quindle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    qint64 numbers[2]{};
    if (size < sizeof numbers)
        return 0;
    std::memcpy(numbers, data, sizeof numbers);
    const QDateTime made = decodeManufactureDate(numbers[0]);
    const QDateTime now = decodeManufactureDate(numbers[1]);
    expect(made.isValid() && now.isValid());
    expect(decodeManufactureDateByDigits(numbers[0]).date() == made.date());
    for (const int mode : {0, 1, 2})
        expect(!ageText(mode, made, now).isEmpty());
    expect(made > now || wholeDays(made, now) >= 0);
    expect(made < now || wholeMonths(made, now) <= 0);
    return 0;
}
