#include "platform/linux/login/LinuxLoginItems.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "common/Paths.h"
#include "platform/linux/login/AutostartEntry.h"
#include "platform/linux/os/FileLock.h"
#include "platform/linux/os/FileReplacement.h"
#include "settings/StartupLaunch_pref.h"
#include "tests/platform/LoginItemsContract.h"
#include "tests/platform/linux/login/AutostartFolder.h"

namespace quindle {

namespace {

constexpr const char* own = "com.fernhollow.Quindle-Helper.desktop";
const QString identifier = QStringLiteral("com.fernhollow.Quindle-Helper");
const QByteArray helperLine = "Exec=quindle-helper";

/// For as long as it lives the process has not the rights of root.
class Unprivileged
{
public:
    Unprivileged() { EXPECT_EQ(::geteuid() == 0 ? ::seteuid(65534) : 0, 0); }
    ~Unprivileged() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
};

/// For as long as it lives no file can be made longer than so many bytes, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_formerAction(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limited{bytes, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerAction);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_former = {};
    void (*m_formerAction)(int);
};

class LinuxLoginItemsTest : public testing::Test
{
protected:
    LinuxLoginItemsTest()
    {
        QFile::link(folder.program(), folder.path(QStringLiteral("bin/quindle-helper")));
        messages().clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { messages().append(text); });
    }
    ~LinuxLoginItemsTest() override { qInstallMessageHandler(m_former); }

    static QStringList& messages()
    {
        static QStringList list;
        return list;
    }

    bool isLoginItem() { return StartupLaunch_pref::isAppLoginItem(items, folder.bundle()); }
    void launchOnLogin(bool enable) { StartupLaunch_pref::setLaunchOnLogin(items, folder.bundle(), enable); }

    QStringList urls()
    {
        QStringList urls;
        const auto list = items.snapshot();
        for (const LoginItems::Item item : list.value())
            urls.append(items.resolve(item).value_or(QString()));
        return urls;
    }

    AutostartFolder folder;
    LinuxLoginItems items{folder.places()};

private:
    QtMessageHandler m_former = nullptr;
};

TEST_F(LinuxLoginItemsTest, EntersOneEntryThatOnlyTheUserReads)
{
    for (int time = 0; time < 2; ++time) {
        launchOnLogin(true);
        EXPECT_EQ(folder.entryNames(), QStringList(QLatin1String(own)));
        EXPECT_TRUE(isLoginItem());
    }
    EXPECT_TRUE(folder.entry(own).contains("Exec=\"" + QFile::encodeName(folder.program()) + "\"\n"));
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
    items.setEnabled(identifier, true);
    items.setEnabled(identifier, false);
    EXPECT_EQ(everything(), before);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxLoginItemsTest, WhatCannotBeReadIsPassedOver)
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

TEST_F(LinuxLoginItemsTest, AFileWithoutTheRightToReadItIsPassedOver)
{
    folder.addEntry("a.desktop", helperLine);
    const QString path = folder.entries() + QStringLiteral("/a.desktop");
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path({})).constData(), 0755), 0);
    EXPECT_TRUE(isLoginItem());
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);
    const Unprivileged rights;
    EXPECT_FALSE(isLoginItem());
}

TEST_F(LinuxLoginItemsTest, OwnEntryThatStartsNothingIsReplaced)
{
    for (const QByteArray& lines : {QByteArray("Exec=quindle-helper\nHidden=true"), QByteArray("Exec="),
                                    QByteArray("Exec=/old/place/quindle-helper"), QByteArray("Exec=other"),
                                    helperLine + "\nX-GNOME-Autostart-enabled=false"}) {
        for (const bool byIdentifier : {false, true}) {
            folder.addEntry(own, lines);
            EXPECT_FALSE(isLoginItem()) << lines.toStdString();
            byIdentifier ? items.setEnabled(identifier, true) : launchOnLogin(true);
            EXPECT_TRUE(isLoginItem()) << lines.toStdString();
            EXPECT_EQ(folder.entryNames().size(), 1);
        }
    }
}

TEST_F(LinuxLoginItemsTest, AHiddenEntryStaysHiddenWhenDisabled)
{
    folder.addEntry(own, helperLine + "\nHidden=true");
    const QByteArray before = folder.entry(own);
    launchOnLogin(false);
    items.setEnabled(identifier, false);
    EXPECT_EQ(folder.entry(own), before);
}

TEST_F(LinuxLoginItemsTest, AnEntryOfAnotherNameThatStartsTheHelperIsTheItem)
{
    folder.addEntry("battery.desktop", helperLine);
    folder.addEntry("c.desktop", "Exec=other");
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(true);
    items.setEnabled(identifier, true);
    EXPECT_EQ(folder.entryNames().size(), 2);
    launchOnLogin(false);
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("c.desktop")));
}

TEST_F(LinuxLoginItemsTest, DisablingLeavesNone)
{
    launchOnLogin(true);
    folder.addEntry("battery.desktop", helperLine);
    folder.addEntry("c.desktop", "Exec=other");
    items.setEnabled(identifier, false);
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("c.desktop")));
}

TEST_F(LinuxLoginItemsTest, DisablingTakesOutTheNamedEntryOfAnotherInstallation)
{
    folder.addEntry(own, "Exec=other");
    items.setEnabled(identifier, false);
    EXPECT_TRUE(folder.entryNames().isEmpty());
}

TEST_F(LinuxLoginItemsTest, AnEntryThatIsALinkIsReplacedAndNotFollowed)
{
    const QString shared = folder.path(QStringLiteral("shared.desktop"));
    AutostartFolder::write(shared, "[Desktop Entry]\nExec=other\n");
    QFile::link(shared, folder.entries() + u'/' + QLatin1String(own));
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
    launchOnLogin(false);
    EXPECT_TRUE(folder.entryNames().isEmpty());
    EXPECT_EQ(QFileInfo(shared).size(), 27);
}

TEST_F(LinuxLoginItemsTest, AFileInPlaceOfTheFolderChangesNothingAndIsToldOnce)
{
    ASSERT_TRUE(QDir(folder.entries()).removeRecursively());
    AutostartFolder::write(folder.entries(), "file");
    EXPECT_EQ(items.snapshot(), std::nullopt);
    launchOnLogin(true);
    EXPECT_TRUE(messages().isEmpty());
    for (int time = 0; time < 3; ++time)
        items.setEnabled(identifier, true);
    items.setEnabled(identifier, false);
    EXPECT_EQ(messages().size(), 1);
    EXPECT_EQ(QFileInfo(folder.entries()).size(), 4);
}

TEST_F(LinuxLoginItemsTest, AReadOnlyFolderChangesNothingAndIsToldOnce)
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

TEST_F(LinuxLoginItemsTest, AFullDiskLeavesWhatIsThere)
{
    folder.addEntry(own, "Exec=other");
    const QByteArray before = folder.entry(own);
    {
        const FullDisk disk(20);
        launchOnLogin(true);
        launchOnLogin(true);
    }
    EXPECT_EQ(folder.entry(own), before);
    EXPECT_EQ(folder.entryNames().size(), 1);
    EXPECT_EQ(messages().size(), 1);
    launchOnLogin(true);
    EXPECT_TRUE(isLoginItem());
}

TEST_F(LinuxLoginItemsTest, WhatAKilledWriterLeftIsCleared)
{
    AutostartFolder::write(
        folder.entries() + QStringLiteral("/.") + QLatin1String(own) + QStringLiteral(".new-abcdef"), "x");
    launchOnLogin(true);
    EXPECT_EQ(folder.entryNames(), QStringList(QLatin1String(own)));
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

TEST_F(LinuxLoginItemsTest, AUserWithoutFolderHasNoList)
{
    LoginItemPlaces nowhere = folder.places();
    nowhere.entries.clear();
    LinuxLoginItems list(nowhere);
    EXPECT_EQ(list.snapshot(), std::nullopt);
    list.setEnabled(identifier, true);
    list.setEnabled(identifier, false);
    StartupLaunch_pref::setLaunchOnLogin(list, folder.bundle(), true);
    EXPECT_FALSE(StartupLaunch_pref::isAppLoginItem(list, folder.bundle()));
}

TEST_F(LinuxLoginItemsTest, OpenedForReadingOnlyChangesNothing)
{
    folder.addEntry("battery.desktop", helperLine);
    LinuxLoginItems list(folder.places(), SettingsAccess::ReadOnly);
    EXPECT_TRUE(StartupLaunch_pref::isAppLoginItem(list, folder.bundle()));
    list.setEnabled(identifier, false);
    list.insertBeforeFirst(fileUrl(folder.bundle()));
    list.remove(list.snapshot()->front());
    EXPECT_EQ(folder.entryNames(), QStringList(QStringLiteral("battery.desktop")));
    EXPECT_FALSE(QFileInfo::exists(folder.places().lock));
}

TEST_F(LinuxLoginItemsTest, AnotherWriterIsNotWaitedForWithoutEnd)
{
    QDir().mkpath(QFileInfo(folder.places().lock).path());
    const auto other = FileLock::take(QFile::encodeName(folder.places().lock), std::chrono::milliseconds(0));
    ASSERT_TRUE(other);
    launchOnLogin(true);
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(messages().size(), 1);
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
        EXPECT_TRUE(folder.entry(own).contains("\nExec=\"" + link + "\"\n"))
            << folder.entry(own).toStdString();
        EXPECT_EQ(linkTarget(link), bundle + "/Contents/Linux/quindle-helper");
        EXPECT_EQ(odd.resolve(odd.snapshot()->front()), folder.bundleUrl());
        StartupLaunch_pref::setLaunchOnLogin(odd, folder.bundle(), false);
        EXPECT_FALSE(QFileInfo::exists(places.link));
        EXPECT_EQ(folder.entryNames(), QStringList());
        ::unlink(bundle.constData());
        ::rmdir(folderOf(bundle).constData());
    }
}

TEST_F(LinuxLoginItemsTest, AProgramThatNotAllSessionsStartIsToldInOneLine)
{
    const QString bundle = folder.path(QStringLiteral("a=b/Quindle-Helper.app"));
    QDir().mkpath(bundle + QStringLiteral("/Contents/Linux"));
    QFile::link(folder.program(), bundleProgram(bundle));
    LoginItemPlaces places = folder.places();
    places.bundle = bundle;
    LinuxLoginItems throughLink(places);
    throughLink.setEnabled(identifier, true);
    EXPECT_EQ(messages(), QStringList());
    places.link = folder.path(QStringLiteral("c=d/quindle-helper"));
    LinuxLoginItems direct(places);
    direct.setEnabled(identifier, false);
    direct.setEnabled(identifier, true);
    EXPECT_EQ(folder.entryNames(), QStringList{QLatin1String(own)});
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
