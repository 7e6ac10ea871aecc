#include "inspect/NeutralPath.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(NeutralPath, HoldsNoUsersName)
{
    const struct
    {
        const char* path;
        const char* home;
        const char* neutral;
    } rows[] = {
        {"/srv/jane/q.app", "/srv/jane", "/home/user/q.app"},
        {"/srv/jane", "/srv/jane", "/home/user"},
        {"/srv/jane/q.app", "/srv/jane/", "/home/user/q.app"},
        {"/srv/jane/q.app", "/srv//jane", "/home/user/q.app"},
        {"/home/local/ACME/jane/q.app", "/home/local/ACME/jane", "/home/user/q.app"},
        {"/srv/janet/q.app", "/srv/jane", "/srv/janet/q.app"},
        {"/home/jane/q.app", "/home/jane", "/home/user/q.app"},
        {"/home/jane/q.app", "/root", "/home/user/q.app"},
        {"/home/jane/q.app", "", "/home/user/q.app"},
        {"/home/jane/q.app", "/", "/home/user/q.app"},
        {"/home/jane", "", "/home/user"},
        {"/Users/jane/Applications/q.app", "", "/Users/user/Applications/q.app"},
        {"/var/home/jane/q.app", "", "/var/home/user/q.app"},
        {"/run/media/jane/disk/q.app", "", "/run/media/user/disk/q.app"},
        {"/home/", "", "/home/"},
        {"/home", "", "/home"},
        {"/homes/jane", "", "/homes/jane"},
        {"/opt/home/q.app", "", "/opt/home/q.app"},
        {"/Applications/q.app", "/root", "/Applications/q.app"},
        {"", "", ""},
    };
    for (const auto& [path, home, neutral] : rows)
        EXPECT_EQ(neutralPath(QString::fromLatin1(path), QString::fromLatin1(home)),
                  QString::fromLatin1(neutral))
            << path << ' ' << home;
}

} // namespace
