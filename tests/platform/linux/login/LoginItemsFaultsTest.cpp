#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/FileLock.h"
#include "tests/platform/linux/login/LoginItemsFixture.h"
#include "tests/support/FullDisk.h"

using namespace quindle;

namespace {

/// While it lives, the process does not have root's rights.
class Unprivileged
{
public:
    Unprivileged() { EXPECT_EQ(::geteuid() == 0 ? ::seteuid(65534) : 0, 0); }
    ~Unprivileged() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
};

class LoginItemsFaultsTest : public LoginItemsFixture
{
};

TEST_F(LoginItemsFaultsTest, WhatCannotBeReadIsPassedOver)
{
    QDir().mkpath(folder.entries() + QStringLiteral("/folder.desktop"));
    ASSERT_EQ(
        ::mkfifo(QFile::encodeName(folder.entries() + QStringLiteral("/pipe.desktop")).constData(), 0600), 0);
    QFile::link(QStringLiteral("/nonexistent"), folder.entries() + QStringLiteral("/dangling.desktop"));
    QFile::link(QStringLiteral("round.desktop"), folder.entries() + QStringLiteral("/round.desktop"));
    QFile::link(QStringLiteral("/dev/zero"), folder.entries() + QStringLiteral("/device.desktop"));
    EXPECT_EQ(urls(), QStringList(QList<QString>(5)));
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(false);
    EXPECT_EQ(folder.entryNames().size(), 5);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LoginItemsFaultsTest, AFileWithoutTheRightToReadItIsPassedOver)
{
    folder.addEntry("a.desktop", helperLine);
    const QString path = folder.entries() + QStringLiteral("/a.desktop");
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path({})).constData(), 0755), 0);
    EXPECT_TRUE(isLoginItem());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    const Unprivileged rights;
    EXPECT_FALSE(isLoginItem());
}

TEST_F(LoginItemsFaultsTest, AFileInPlaceOfTheFolderChangesNothingAndIsLoggedOnce)
{
    ASSERT_TRUE(QDir(folder.entries()).removeRecursively());
    AutostartFolder::write(folder.entries(), "file");
    EXPECT_EQ(items.snapshot(), std::nullopt);
    launchOnLogin(true);
    EXPECT_TRUE(messages().isEmpty());
    for (int time = 0; time < 3; ++time)
        items.setEnabled(helperIdentifier, true);
    items.setEnabled(helperIdentifier, false);
    EXPECT_EQ(messages().size(), 1);
    EXPECT_EQ(QFileInfo(folder.entries()).size(), 4);
}

TEST_F(LoginItemsFaultsTest, AReadOnlyFolderChangesNothingAndIsLoggedOnce)
{
    folder.addEntry("battery.desktop", helperLine);
    for (const QString& path : {folder.path({}), folder.entries()})
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0555), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.configuration()).constData(), 0777), 0);
    {
        const Unprivileged rights;
        EXPECT_TRUE(isLoginItem());
        for (int time = 0; time < 3; ++time)
            launchOnLogin(false);
        EXPECT_TRUE(isLoginItem());
        EXPECT_EQ(messages().size(), 1);
        for (int time = 0; time < 3; ++time)
            items.insertBeforeFirst(fileUrl(folder.bundle()));
    }
    EXPECT_EQ(messages().size(), 1); // the same reason
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("battery.desktop")));
    ::chmod(QFile::encodeName(folder.path({})).constData(), 0700);
    ::chmod(QFile::encodeName(folder.entries()).constData(), 0700);
}

TEST_F(LoginItemsFaultsTest, AFullDiskLeavesWhatIsThere)
{
    folder.addEntry(ownEntry, "Exec=other");
    const QByteArray before = folder.entry(ownEntry);
    {
        const FullDisk disk(20);
        launchOnLogin(true);
        launchOnLogin(true);
    }
    EXPECT_EQ(folder.entry(ownEntry), before);
    EXPECT_EQ(folder.entryNames().size(), 1);
    EXPECT_EQ(messages().size(), 1);
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
}

TEST_F(LoginItemsFaultsTest, WhatAKilledWriterLeftIsCleared)
{
    AutostartFolder::write(folder.entries() + QStringLiteral("/.") + QLatin1String(ownEntry) +
                               QStringLiteral(".new-abcdef"),
                           "x");
    launchOnLogin(true);
    EXPECT_EQ(folder.entryNames(), QStringList(QLatin1String(ownEntry)));
}

TEST_F(LoginItemsFaultsTest, AUserWithoutFolderHasNoList)
{
    LoginItemPlaces nowhere = folder.places();
    nowhere.entries.clear();
    LinuxLoginItems list(nowhere);
    EXPECT_EQ(list.snapshot(), std::nullopt);
    list.setEnabled(helperIdentifier, true);
    list.setEnabled(helperIdentifier, false);
    StartupLaunch_pref::setLaunchOnLogin(list, folder.bundle(), true);
    EXPECT_FALSE(StartupLaunch_pref::isAppLoginItem(list, folder.bundle()));
}

TEST_F(LoginItemsFaultsTest, OpenedForReadingOnlyChangesNothing)
{
    folder.addEntry("battery.desktop", helperLine);
    LinuxLoginItems list(folder.places(), SettingsAccess::ReadOnly);
    EXPECT_TRUE(StartupLaunch_pref::isAppLoginItem(list, folder.bundle()));
    list.setEnabled(helperIdentifier, false);
    list.insertBeforeFirst(fileUrl(folder.bundle()));
    list.remove(list.snapshot()->front());
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("battery.desktop")));
    EXPECT_FALSE(QFileInfo::exists(folder.places().lock));
}

TEST_F(LoginItemsFaultsTest, AnotherWriterIsNotWaitedForWithoutEnd)
{
    QDir().mkpath(QFileInfo(folder.places().lock).path());
    const auto other = FileLock::take(QFile::encodeName(folder.places().lock), std::chrono::milliseconds(0));
    ASSERT_TRUE(other);
    launchOnLogin(true);
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(messages().size(), 1);
}

} // namespace
