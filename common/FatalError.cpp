#include "common/FatalError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QString>

#include "common/Paths.h"

namespace quindle {

void fatalError(QStringView message)
{
    QString line = message.toString();
    // File names may hold any text; the message stays one line.
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c < u' '; }, u' ');
    // Straight to standard error: whatever handles log messages may be what is broken. As paths: the name of
    // a file may not be UTF-8.
    std::fprintf(stderr, "quindle: fatal: %s\n", pathBytes(line).constData());
    std::abort();
}

} // namespace quindle
