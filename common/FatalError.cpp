#include "common/FatalError.h"

#include <cstdio>
#include <cstdlib>

#include <QString>

namespace quindle {

void fatalError(QStringView message)
{
    std::fprintf(stderr, "quindle: fatal: %s\n", message.toUtf8().constData());
    std::abort();
}

} // namespace quindle
