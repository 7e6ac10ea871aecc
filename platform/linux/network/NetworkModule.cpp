// What the helper needs the network libraries for. They cost every process that loads them more than the rest
// of the program's services together, so this is a module of its own, which only a process that asks or posts
// loads.

#include <string_view>

#include "platform/linux/network/CurlUrlSession.h"
#include "platform/linux/network/NetworkModule.h"

extern "C" Q_DECL_EXPORT quindle::UrlSession* quindleMakeUrlSession(const char* programVersion)
{
    return std::string_view(programVersion) == QUINDLE_VERSION ? new quindle::CurlUrlSession : nullptr;
}
