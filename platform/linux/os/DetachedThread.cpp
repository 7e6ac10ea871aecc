#include "platform/linux/os/DetachedThread.h"

#include <memory>

#include <pthread.h>
#include <sched.h>

namespace quindle {

namespace {

using Work = std::function<void()>;

void* run(void* work)
{
    (*std::unique_ptr<Work>(static_cast<Work*>(work)))();
    return nullptr;
}

bool start(Work work, const pthread_attr_t& attributes)
{
    // Not std::thread, which cannot be bound before it starts, and throws where there is no room for it.
    auto owned = std::make_unique<Work>(std::move(work));
    pthread_t thread = {};
    if (pthread_create(&thread, &attributes, run, owned.get()) != 0)
        return false;
    owned.release(); // NOLINT(bugprone-unused-return-value): the thread's
    return true;
}

struct DetachedAttributes
{
    DetachedAttributes()
    {
        pthread_attr_init(&attributes);
        pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
    }
    ~DetachedAttributes() { pthread_attr_destroy(&attributes); }
    DetachedAttributes(const DetachedAttributes&) = delete;
    DetachedAttributes& operator=(const DetachedAttributes&) = delete;

    pthread_attr_t attributes = {};
};

} // namespace

bool startThread(Work work)
{
    const DetachedAttributes detached;
    return start(std::move(work), detached.attributes);
}

bool startThreadHere(Work work)
{
    DetachedAttributes detached;
    cpu_set_t here;
    CPU_ZERO(&here);
    const int processor = sched_getcpu();
    if (processor >= 0 && processor < CPU_SETSIZE) {
        CPU_SET(static_cast<unsigned>(processor), &here);
        pthread_attr_setaffinity_np(&detached.attributes, sizeof here, &here);
    }
    // The binding is optional: where it is refused any processor will do.
    return start(work, detached.attributes) || startThread(std::move(work));
}

} // namespace quindle
