#include "tests/soak/Measures.h"

#include <fstream>

#include <malloc.h>
#include <unistd.h>

#include <QDir>

namespace quindle {

Measures Measures::now()
{
    const struct mallinfo2 info = mallinfo2();
    qint64 total = 0;
    qint64 resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    const QStringList files =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    return {.heap = static_cast<qint64>(info.uordblks + info.hblkhd),
            .resident = resident * sysconf(_SC_PAGESIZE),
            .openFiles = static_cast<int>(files.size())};
}

} // namespace quindle
