// The helper's network module for tests: the same exchanges, but posts trust the authority that the test made
// and no other.

#include "platform/linux/network/CurlUrlSession.h"

extern "C" Q_DECL_EXPORT quindle::UrlSession* quindleMakeUrlSession(const char* /*programVersion*/)
{
    return new quindle::CurlUrlSession({.authorities = qgetenv("QUINDLE_TEST_AUTHORITY")});
}
