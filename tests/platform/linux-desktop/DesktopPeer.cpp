// A second process for tests: starts as the helper does, and says on standard output what became of it.
//
//     quindle_desktop_peer FOLDER NAME     "first", then "show" for each request; or "asked" and the end

#include <cstdio>

#include <QCoreApplication>

#include "platform/linux/SingleInstance.h"

namespace {

void say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    quindle::SingleInstance instance(arguments.at(1), arguments.at(2));
    instance.setShowRequested([] { say("show"); });
    if (instance.acquire()) {
        say("first");
        return QCoreApplication::exec();
    }
    if (!instance.askFirstToShow())
        return 1;
    say("asked");
    return 0;
}
