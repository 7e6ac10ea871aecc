// A second process for tests: starts as the helper does, and says on standard output what became of it.
//
//     quindle_instance_peer STEM    "first", then "show" for each request; or "asked" and the end

#include <cstdio>

#include <QCoreApplication>

#include "platform/linux/session/InstanceFiles.h"

namespace {

void say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    using Outcome = quindle::StartAnswer::Outcome;
    const QCoreApplication application(argc, argv);
    quindle::InstanceFiles instance({QCoreApplication::arguments().at(1)});
    instance.setShowRequested([] { say("show"); });
    switch (instance.start().outcome) {
    case Outcome::First:
        say("first");
        return QCoreApplication::exec();
    case Outcome::AnotherWoken:
        say("asked");
        return 0;
    case Outcome::GivenUp:
        break;
    }
    return 1;
}
