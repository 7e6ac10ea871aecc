// The helper's network module for tests: the same posts, but it trusts the authority that the test made and
// no other.

#include <QSslCertificate>
#include <QSslConfiguration>

#include "platform/linux/HttpsPost.h"

extern "C" Q_DECL_EXPORT quindle::Poster* quindleMakePoster()
{
    QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
    trust.setCaCertificates(QSslCertificate::fromPath(qEnvironmentVariable("QUINDLE_TEST_AUTHORITY")));
    return new quindle::HttpsPost({}, trust);
}
