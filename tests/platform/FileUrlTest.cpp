#include "platform/FileUrl.h"

#include <gtest/gtest.h>

#include "common/Paths.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(FileUrl, NamesAPathInPercentEncoding)
{
    const struct
    {
        const char* path;
        const char* url;
    } rows[] = {
        {"/opt/Quindle Helper", "file:///opt/Quindle%20Helper"},
        {"/zo\xc3\xab", "file:///zo%C3%AB"},
        {"/a#b?c%d", "file:///a%23b%3Fc%25d"},
        {"/odd \xff/x", "file:///odd%20%FF/x"},
        {"/\xc3/\xfe", "file:///%C3/%FE"},
    };
    for (const auto& [path, url] : rows) {
        EXPECT_EQ(fileUrl(pathText(path)), QString::fromLatin1(url));
        EXPECT_EQ(pathBytes(pathOfFileUrl(QString::fromLatin1(url))), path);
    }
    EXPECT_EQ(fileUrl(QString()), QString());
}

TEST(FileUrl, IsWrittenAlikeForPathsOfEitherKind)
{
    for (char c = 1; c < 0x7f; ++c) {
        const QByteArray name = "/a" + QByteArray(1, c) + 'b';
        const QString plain = fileUrl(pathText(name));
        EXPECT_EQ(fileUrl(pathText(name + '\xff')), plain + QStringLiteral("%FF")) << int(c);
    }
}

TEST(FileUrl, HasOneNormalForm)
{
    const struct
    {
        const char* url;
        const char* normal;
    } rows[] = {
        {"file:///a/b.app", "file:///a/b.app/"},
        {"file://localhost/a/b.app/", "file:///a/b.app/"},
        {"file:///a b", "file:///a%20b"},
        {"file:///a/b//", "file:///a/b"},
        {"file:///%ff/b.app", "file:///%FF/b.app/"},
        {"https://a/b", "https://a/b"},
        {"/a/b", "/a/b"},
    };
    for (const auto& [url, normal] : rows)
        EXPECT_EQ(normalFileUrl(QString::fromLatin1(url)), QString::fromLatin1(normal));
}

} // namespace
