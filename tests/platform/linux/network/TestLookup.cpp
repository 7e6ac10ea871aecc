// Loaded before the C library into a program under test: names that end in ".test" are this computer, but for
// "hangs.test", whose lookup never comes to an end, as with a name server that does not answer. A file shows
// that it has begun.

#include <cstdlib>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char* node, const char* service,
                                                                  const addrinfo* hints, addrinfo** found)
{
    const std::string_view name(node ? node : "");
    if (name == "hangs.test") {
        if (const char* begun = std::getenv("QUINDLE_TEST_LOOKUP"))
            close(open(begun, O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
        for (;;)
            pause();
    }
    const auto original = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return original(name.ends_with(".test") ? "127.0.0.1" : node, service, hints, found);
}
