#include "common/FatalError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QString>

namespace quindle {

void fatalError(QStringView message)
{
    QString line = message.toString();
    // File names may hold any text; the message stays one line.
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c < u' '; }, u' ');
    // Straight to standard error: whatever handles log messages may be what is broken.
    std::fprintf(stderr, "quindle: fatal: %s\n", line.toUtf8().constData());
    std::abort();
}

} // namespace quindle
