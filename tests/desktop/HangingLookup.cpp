// Loaded before the C library into a program under test: looking up one host never comes to an end, as with a
// name server that does not answer. Tells that it has begun by making a file.

#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char* node, const char* service,
                                                                  const addrinfo* hints, addrinfo** found)
{
    if (node && std::strcmp(node, "hangs.test") == 0) {
        close(open(std::getenv("QUINDLE_TEST_LOOKUP"), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
        for (;;)
            pause();
    }
    const auto original = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return original(node, service, hints, found);
}
