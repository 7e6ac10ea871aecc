// Posts once as the program does and tells what came of it: "STATUS BODY" or "no answer", and how long it
// took to hear and to quit. HttpsPeer AUTHORITY URL BODY TIME_LIMIT_MS QUIT_AFTER_MS (0: when answered or out
// of time)

#include <chrono>
#include <cstdio>
#include <memory>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSslCertificate>
#include <QTimer>

#include "platform/linux/HttpsPost.h"

using namespace quindle;

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.setCaCertificates(QSslCertificate::fromPath(arguments.at(1)));
    const std::chrono::milliseconds limit(arguments.at(4).toInt());
    const std::chrono::milliseconds quitAfter(arguments.at(5).toInt());

    auto https = std::make_unique<HttpsPost>(HttpsLimits{.time = limit}, trust);
    QByteArray answer = "no answer";
    QElapsedTimer time;
    time.start();
    const std::chrono::milliseconds posting(250); // more than it may take to start a request
    https->post(arguments.at(2), arguments.at(3).toLatin1(), [&](int status, const QByteArray& body) {
        answer = QByteArray::number(status) + ' ' + body;
        QCoreApplication::quit();
    });
    const bool startedAtOnce = time.elapsed() < posting.count();
    QTimer::singleShot(quitAfter.count() > 0 ? quitAfter : limit + posting, &QCoreApplication::quit);
    QCoreApplication::exec();
    const qint64 waited = time.restart();
    https.reset();
    std::printf("%s\n%lld %lld %s\n", answer.constData(), static_cast<long long>(waited),
                static_cast<long long>(time.elapsed()), startedAtOnce ? "at once" : "late");
    return 0;
}
