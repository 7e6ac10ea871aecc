#include "platform/linux/login/LinuxLoginItems.h"

#include <sys/stat.h>

#include "common/Paths.h"
#include "platform/linux/login/AutostartEntry.h"
#include "platform/posix/FileReplacement.h"
#include "tests/platform/LoginItemsContract.h"
#include "tests/platform/linux/login/LoginItemsFixture.h"

namespace quindle {

namespace {

class LinuxLoginItemsTest : public LoginItemsFixture
{
};

TEST_F(LinuxLoginItemsTest, EntersOneEntryThatOnlyTheUserReads)
{
    for (int time = 0; time < 2; ++time) {
        launchOnLogin(true);
        EXPECT_EQ(folder.entryNames(), QStringList(QLatin1String(ownEntry)));
        EXPECT_TRUE(isLoginItem());
    }
    EXPECT_TRUE(folder.entry(ownEntry).contains("Exec=\"" + QFile::encodeName(folder.program()) + "\"\n"));
    for (int time = 0; time < 2; ++time) {
        launchOnLogin(false);
        EXPECT_TRUE(folder.entryNames().isEmpty());
        EXPECT_FALSE(isLoginItem());
    }
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxLoginItemsTest, MakesTheFolder)
{
    ASSERT_TRUE(QDir(folder.configuration()).removeRecursively());
    EXPECT_EQ(items.snapshot(), std::vector<LoginItems::Item>());
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
    struct stat made = {};
    ASSERT_EQ(::stat(QFile::encodeName(folder.entries()).constData(), &made), 0);
    EXPECT_EQ(made.st_mode & 07777, 0700U);
}

TEST_F(LinuxLoginItemsTest, OwnEntryFirstThenTheOthersByName)
{
    for (const char* name : {"b.desktop", "B.desktop", "a.desktop", "zz.desktop"})
        folder.addEntry(name, "Exec=other");
    folder.addEntry("Other.desktop", "Exec=" + QFile::encodeName(folder.path(QStringLiteral("bin/last"))));
    launchOnLogin(true);
    const QString other = fileUrl(folder.path(QStringLiteral("bin/other")));
    EXPECT_EQ(urls(), (QStringList{folder.bundleUrl(), other, QString(), other, other, other}));
}

TEST_F(LinuxLoginItemsTest, OnlyEntriesCount)
{
    const QByteArray bytes = "[Desktop Entry]\nExec=quindle-helper\n";
    for (const char* name : {"a.desktop~", ".hidden.desktop", "a.txt", "desktop"})
        AutostartFolder::write(folder.entries() + u'/' + QLatin1String(name), bytes);
    EXPECT_TRUE(urls().isEmpty());
}

TEST_F(LinuxLoginItemsTest, EntriesOfOthersStayByteForByte)
{
    const QList<QByteArray> contents{"Exec=other\nHidden=true\r\n",
                                     "Exec=",
                                     "Exec=\"broken",
                                     QByteArray("Exec=\0\xff", 7),
                                     QByteArray(1'000'000, 'x'),
                                     "# no\n",
                                     "Exec=quindle-helper\nHidden=true"};
    for (qsizetype index = 0; index < contents.size(); ++index)
        folder.addEntry(("other" + QByteArray::number(index) + ".desktop").constData(), contents[index]);
    AutostartFolder::write(folder.entries() + QStringLiteral("/empty.desktop"), {});
    const auto everything = [&] {
        QMap<QString, QByteArray> files;
        for (const QString& name : folder.entryNames())
            files.insert(name, folder.entry(name.toUtf8().constData()));
        return files;
    };
    const auto before = everything();
    EXPECT_FALSE(isLoginItem());
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(false);
    items.setEnabled(helperIdentifier, true);
    items.setEnabled(helperIdentifier, false);
    EXPECT_EQ(everything(), before);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxLoginItemsTest, OwnEntryThatStartsNothingIsReplaced)
{
    for (const QByteArray& lines : {QByteArray("Exec=quindle-helper\nHidden=true"), QByteArray("Exec="),
                                    QByteArray("Exec=/old/place/quindle-helper"), QByteArray("Exec=other"),
                                    helperLine + "\nX-GNOME-Autostart-enabled=false"}) {
        for (const bool byIdentifier : {false, true}) {
            folder.addEntry(ownEntry, lines);
            EXPECT_FALSE(isLoginItem()) << lines.toStdString();
            byIdentifier ? items.setEnabled(helperIdentifier, true) : launchOnLogin(true);
            EXPECT_TRUE(isLoginItem()) << lines.toStdString();
            EXPECT_EQ(folder.entryNames().size(), 1);
        }
    }
}

TEST_F(LinuxLoginItemsTest, AHiddenEntryStaysHiddenWhenDisabled)
{
    folder.addEntry(ownEntry, helperLine + "\nHidden=true");
    const QByteArray before = folder.entry(ownEntry);
    launchOnLogin(false);
    items.setEnabled(helperIdentifier, false);
    EXPECT_EQ(folder.entry(ownEntry), before);
}

TEST_F(LinuxLoginItemsTest, AnEntryOfAnotherNameThatStartsTheHelperIsTheItem)
{
    folder.addEntry("battery.desktop", helperLine);
    folder.addEntry("c.desktop", "Exec=other");
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(true);
    items.setEnabled(helperIdentifier, true);
    EXPECT_EQ(folder.entryNames().size(), 2);
    launchOnLogin(false);
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("c.desktop")));
}

TEST_F(LinuxLoginItemsTest, DisablingLeavesNone)
{
    launchOnLogin(true);
    folder.addEntry("battery.desktop", helperLine);
    folder.addEntry("c.desktop", "Exec=other");
    items.setEnabled(helperIdentifier, false);
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("c.desktop")));
}

TEST_F(LinuxLoginItemsTest, DisablingTakesOutTheNamedEntryOfAnotherInstallation)
{
    folder.addEntry(ownEntry, "Exec=other");
    items.setEnabled(helperIdentifier, false);
    EXPECT_TRUE(folder.entryNames().isEmpty());
}

TEST_F(LinuxLoginItemsTest, AnEntryThatIsALinkIsReplacedAndNotFollowed)
{
    const QString shared = folder.path(QStringLiteral("shared.desktop"));
    AutostartFolder::write(shared, "[Desktop Entry]\nExec=other\n");
    QFile::link(shared, folder.entries() + u'/' + QLatin1String(ownEntry));
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(false);
    EXPECT_TRUE(folder.entryNames().isEmpty());
    EXPECT_EQ(QFileInfo(shared).size(), 27);
}

TEST_F(LinuxLoginItemsTest, AProgramThatIsNotThereIsNotEntered)
{
    StartupLaunch_pref::setLaunchOnLogin(items, QString(), true);
    StartupLaunch_pref::setLaunchOnLogin(items, folder.path(QStringLiteral("Quindle.app")), true);
    items.insertBeforeFirst(QStringLiteral("https://example.org/"));
    EXPECT_TRUE(folder.entryNames().isEmpty());
    EXPECT_EQ(messages().size(), 3);
}

TEST_F(LinuxLoginItemsTest, NamesThatAreNoneAreRefused)
{
    for (const QString& name : {QString(), QStringLiteral("../x"), QStringLiteral("a/b")})
        for (const bool enabled : {true, false})
            items.setEnabled(name, enabled);
    EXPECT_TRUE(folder.entryNames().isEmpty());
}

TEST_F(LinuxLoginItemsTest, AProgramAtAPathThatNotAllSessionsReadIsStartedThroughALink)
{
    for (const QByteArray name : {"100%", "a\xff"}) {
        const QByteArray bundle =
            QFile::encodeName(folder.path(QStringLiteral("lib/"))) + name + "/Quindle-Helper.app";
        ASSERT_EQ(::mkdir(folderOf(bundle).constData(), 0700), 0);
        ASSERT_EQ(::symlink(QFile::encodeName(folder.bundle()).constData(), bundle.constData()), 0);
        LoginItemPlaces places = folder.places();
        places.bundle = pathText(bundle);
        LinuxLoginItems odd(places);
        StartupLaunch_pref::setLaunchOnLogin(odd, places.bundle, true);
        const QByteArray link = QFile::encodeName(places.link);
        EXPECT_TRUE(folder.entry(ownEntry).contains("\nExec=\"" + link + "\"\n"))
            << folder.entry(ownEntry).toStdString();
        EXPECT_EQ(linkTarget(link), bundle + "/Contents/Linux/quindle-helper");
        EXPECT_EQ(odd.resolve(odd.snapshot()->front()), folder.bundleUrl());
        StartupLaunch_pref::setLaunchOnLogin(odd, folder.bundle(), false);
        EXPECT_FALSE(QFileInfo::exists(places.link));
        EXPECT_EQ(folder.entryNames(), QStringList());
        ::unlink(bundle.constData());
        ::rmdir(folderOf(bundle).constData());
    }
}

TEST_F(LinuxLoginItemsTest, AProgramThatNotAllSessionsStartIsNamedInOneLine)
{
    const QString bundle = folder.path(QStringLiteral("a=b/Quindle-Helper.app"));
    QDir().mkpath(bundle + QStringLiteral("/Contents/Linux"));
    QFile::link(folder.program(), bundleProgram(bundle));
    LoginItemPlaces places = folder.places();
    places.bundle = bundle;
    LinuxLoginItems throughLink(places);
    throughLink.setEnabled(helperIdentifier, true);
    EXPECT_EQ(messages(), QStringList());
    places.link = folder.path(QStringLiteral("c=d/quindle-helper"));
    LinuxLoginItems direct(places);
    direct.setEnabled(helperIdentifier, false);
    direct.setEnabled(helperIdentifier, true);
    EXPECT_EQ(folder.entryNames(), QStringList{QLatin1String(ownEntry)});
    EXPECT_EQ(messages().size(), 1);
    EXPECT_TRUE(messages().value(0).contains(bundleProgram(bundle)));
}

TEST(LoginItemPlaces, AreBesideTheSettings)
{
    const QByteArray former = qgetenv("XDG_CONFIG_HOME");
    const QByteArray formerHome = qgetenv("HOME");
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(loginItemPlaces(QStringLiteral("/b")).entries, QStringLiteral("/somewhere/autostart"));
    qputenv("XDG_CONFIG_HOME", "relative"); // counts for nothing
    qputenv("HOME", "/home/jane");
    EXPECT_EQ(loginItemPlaces(QStringLiteral("/b")).entries, QStringLiteral("/home/jane/.config/autostart"));
    qputenv("HOME", formerHome);
    former.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", former);
}

class LinuxItems
{
public:
    LinuxItems()
    {
        m_folder.addEntry("a.desktop", "Exec=other");
        m_folder.addEntry("b.desktop", "Exec=sh");
        AutostartFolder::addProgram(m_folder.path(QStringLiteral("bin/sh")));
    }

    LoginItems& items() { return m_items; }
    QString helper() { return fileUrl(m_folder.bundle()); }

private:
    AutostartFolder m_folder;
    LinuxLoginItems m_items{m_folder.places()};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, LoginItemsContract, LinuxItems);

} // namespace quindle
