#include "common/FatalError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QString>

namespace quindle {

void fatalError(QStringView message)
{
    QString line = message.toString();
    // Names of files are anybody's text, the message stays one line.
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c < u' '; }, u' ');
    std::fprintf(stderr, "quindle: fatal: %s\n", line.toUtf8().constData());
    std::abort();
}

} // namespace quindle
