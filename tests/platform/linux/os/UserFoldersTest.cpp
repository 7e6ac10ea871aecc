#include "platform/linux/os/UserFolders.h"

#include <sys/stat.h>
#include <sys/xattr.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "common/Paths.h"
#include "platform/linux/settings/LinuxUserDefaults.h"
#include "platform/linux/system/LinuxHost.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(UserFolders, AreWhereTheVariablesSayElseInTheHomeFolder)
{
    qputenv("HOME", "/home/jane");
    for (const char* unset : {"", "relative"}) {
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, unset);
        EXPECT_EQ(configurationFolder(), QStringLiteral("/home/jane/.config"));
        EXPECT_EQ(dataFolder(), QStringLiteral("/home/jane/.local/share"));
        EXPECT_EQ(cacheFolder(), QStringLiteral("/home/jane/.cache"));
    }
    qputenv("XDG_CONFIG_HOME", "/c");
    qputenv("XDG_DATA_HOME", "/d");
    qputenv("XDG_CACHE_HOME", "/e");
    EXPECT_EQ(configurationFolder() + dataFolder() + cacheFolder(), QStringLiteral("/c/d/e"));
}

TEST(UserFolders, WithoutHomeTheAccountsIsMeantForAllOfThem)
{
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qunsetenv(variable);
    const QString home = homeFolder();
    ASSERT_TRUE(home.startsWith(u'/'));
    EXPECT_EQ(settingsFolder(), home + QStringLiteral("/.config/quindle"));
    EXPECT_EQ(LinuxUserDirectories().applicationSupportDirectories(),
              QStringList{home + QStringLiteral("/.local/share/quindle")});
    EXPECT_EQ(pathWithTildeExpanded(QStringLiteral("~/x")), home + QStringLiteral("/x"));
}

TEST(UserFolders, AHomeThatIsNoAbsolutePathIsNone)
{
    qputenv("HOME", "relative");
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(settingsFolder(), QString());
    EXPECT_EQ(LinuxUserDirectories().applicationSupportDirectories(), QStringList());
}

TEST(UserFolders, BytesStayWhatTheyAre)
{
    qputenv("HOME", "/home/j\xff");
    qputenv("XDG_DATA_HOME", "/data\xfe");
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(pathBytes(settingsFolder()), "/home/j\xff/.config/quindle");
    EXPECT_EQ(pathBytes(dataFolder()), "/data\xfe");
}

TEST(UserFolders, TheRuntimeFolderIsTheUsersAlone)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    qputenv("XDG_RUNTIME_DIR", path);
    EXPECT_EQ(runtimeFolder(), folder.path());
    for (const mode_t mode : {0720U, 0702U, 0777U}) {
        ASSERT_EQ(::chmod(path.constData(), mode), 0);
        EXPECT_EQ(runtimeFolder(), QString()) << mode;
    }
    for (const char* other : {"", "relative", "/nowhere", "/dev/null"}) {
        qputenv("XDG_RUNTIME_DIR", other);
        EXPECT_EQ(runtimeFolder(), QString()) << other;
    }
}

TEST(UserFolders, ARuntimeFolderThatAnAccessListOpensIsNotUsed)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    qputenv("XDG_RUNTIME_DIR", path);
    struct Entry
    {
        quint16 kind;
        quint16 rights;
        quint32 account;
    };
    struct
    {
        quint32 version = 2;
        Entry entries[5] = {{1, 7, ~0u}, {2, 7, 65534}, {4, 0, ~0u}, {16, 7, ~0u}, {32, 0, ~0u}};
    } const list;
    ASSERT_EQ(::setxattr(path.constData(), "system.posix_acl_access", &list, sizeof list, 0), 0);
    EXPECT_EQ(runtimeFolder(), QString());
}

} // namespace
