#include "records/StoreOutcome.h"

#include <cerrno>

namespace quindle {

namespace {

StoreOutcome faultOf(const QString& what, const QString& path, int error, const QString& reason)
{
    const QString why = reason.isEmpty() ? qt_error_string(error) : reason;
    return {.fault = QStringLiteral("cannot %1 %2: %3").arg(what, path, why),
            .notice = {},
            .error = error != 0 ? error : EIO};
}

} // namespace

StoreOutcome writingFault(const QString& path, int error, const QString& reason)
{
    return faultOf(QStringLiteral("write"), path, error, reason);
}

StoreOutcome readingFaultOf(const QString& path, int error, const QString& reason)
{
    return faultOf(QStringLiteral("read"), path, error, reason);
}

QString setAsideNotice(const QString& path, const QString& newPath)
{
    return QStringLiteral("%1 is damaged, set aside as %2").arg(path, newPath);
}

} // namespace quindle
