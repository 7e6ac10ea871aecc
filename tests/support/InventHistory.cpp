// invent-history FOLDER LAST_DAY [DAYS]: writes the history of an invented laptop (see InventedHistory.h)
// into a folder, up to 18:00 UTC of that day (yyyy-MM-dd), for pictures and measurements.

#include <cstdio>

#include <QCoreApplication>
#include <QDateTime>

#include "common/Paths.h"
#include "tests/support/InventedHistory.h"

using namespace quindle;

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = argumentTexts(argc, argv);
    const QDate day = QDate::fromString(arguments.value(1), Qt::ISODate);
    const int days = arguments.value(2, QStringLiteral("1095")).toInt();
    if (!day.isValid() || days <= 0) {
        std::fputs("usage: invent-history FOLDER LAST_DAY [DAYS]\n", stderr);
        return 64;
    }
    const InventedTime time{.end = QDateTime(day, QTime(18, 0), Qt::UTC).toSecsSinceEpoch(), .days = days};
    const QString fault = inventHistory(time, arguments[0]);
    if (!fault.isEmpty())
        std::fprintf(stderr, "invent-history: %s\n", pathBytes(fault).constData());
    return fault.isEmpty() ? 0 : 1;
}
