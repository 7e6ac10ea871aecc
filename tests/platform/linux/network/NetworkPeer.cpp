// One exchange as the program makes it, and its outcome.
//
// NetworkPeer AUTHORITY URL BODY TIME_LIMIT_MS QUIT_AFTER_MS   posts, and prints "STATUS BODY" or "no
// answer", and
//                                                              how long it took to hear and to quit.
//                                                              QUIT_AFTER_MS 0: when answered or out of time
// NetworkPeer URL TIME_LIMIT_MS                                prints the contents, or "nothing"

#include <chrono>
#include <cstdio>
#include <memory>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include "platform/linux/network/CurlUrlSession.h"

using namespace quindle;
using std::chrono::milliseconds;

namespace {

void get(const QStringList& arguments)
{
    CurlUrlSession session({.contents = {.time = milliseconds(arguments.at(2).toInt()), .size = 100}});
    std::printf("%s\n", session.contents(arguments.at(1)).value_or("nothing").constData());
}

void post(const QStringList& arguments)
{
    const milliseconds limit(arguments.at(4).toInt());
    const milliseconds quitAfter(arguments.at(5).toInt());
    CurlSettings settings{.authorities = arguments.at(1).toLocal8Bit()};
    settings.post.time = limit;

    auto session = std::make_unique<CurlUrlSession>(settings);
    QByteArray answer = "no answer";
    QElapsedTimer time;
    time.start();
    const milliseconds posting(250); // more than it takes to start a request
    // And more than it takes a busy machine; a lookup that is waited for never ends.
    const milliseconds longestStart(15'000);
    session->post(arguments.at(2), arguments.at(3).toLatin1(), [&](int status, const QByteArray& body) {
        answer = QByteArray::number(status) + ' ' + body;
        QCoreApplication::quit();
    });
    const bool startedAtOnce = time.elapsed() < longestStart.count();
    QTimer::singleShot(quitAfter.count() > 0 ? quitAfter : limit + posting, &QCoreApplication::quit);
    QCoreApplication::exec();
    const qint64 waited = time.restart();
    session.reset();
    std::printf("%s\n%lld %lld %s\n", answer.constData(), static_cast<long long>(waited),
                static_cast<long long>(time.elapsed()), startedAtOnce ? "at once" : "late");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3)
        get(arguments);
    else
        post(arguments);
    return 0;
}
