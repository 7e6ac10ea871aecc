#include "tests/support/TestData.h"

namespace quindle {

QString testDataFolder()
{
    return QStringLiteral(QUINDLE_TEST_DATA);
}

} // namespace quindle
