#pragma once

#include <QString>

namespace quindle {

/// What became of a change to one of the files of the history.
struct StoreOutcome
{
    QString fault;  ///< why nothing was changed, one line with file and reason; empty when all is well
    QString notice; ///< one line about a damaged file that was set aside; else empty
    int error = 0;  ///< errno's value of the fault; EIO where the system gave none

    bool isGood() const { return fault.isEmpty(); }
};

/// "cannot write FILE: REASON"; the reason is the system's own where none is given.
StoreOutcome writingFault(const QString& path, int error, const QString& reason = {});

/// "cannot read FILE: REASON".
StoreOutcome readingFaultOf(const QString& path, int error, const QString& reason = {});

/// "FILE is damaged, set aside as NEWFILE".
QString setAsideNotice(const QString& path, const QString& newPath);

} // namespace quindle
