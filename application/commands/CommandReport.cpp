#include "application/commands/CommandReport.h"

#include <cerrno>
#include <sysexits.h>

namespace quindle {

int exitCodeOfWriting(int error)
{
    switch (error) {
    case EACCES:
    case EINVAL:
    case EISDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ENOENT:
    case ENOTDIR:
    case EPERM:
    case EROFS:
        return EX_CANTCREAT;
    case EWOULDBLOCK: // another process holds it
        return EX_TEMPFAIL;
    default:
        return EX_IOERR;
    }
}

} // namespace quindle
