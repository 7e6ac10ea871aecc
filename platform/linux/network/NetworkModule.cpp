// What the helper needs the network libraries for. They cost every process that loads them more than the rest
// of the program's services together, so this is a module of its own, which only a process that asks or posts
// loads.

#include "platform/linux/network/CurlUrlSession.h"

/// The module's only door. The caller owns what it gets.
extern "C" Q_DECL_EXPORT quindle::UrlSession* quindleMakeUrlSession()
{
    return new quindle::CurlUrlSession;
}
