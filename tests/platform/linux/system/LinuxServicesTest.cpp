#include <functional>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/Paths.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/system/LinuxBundle.h"
#include "platform/linux/system/LinuxHost.h"
#include "platform/linux/system/LinuxWorkspace.h"
#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct Folder : testing::Test
{
    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    QString write(const char* name, const QByteArray& content, bool isExecutable = false) const
    {
        const QString target = path(name);
        QDir().mkpath(QFileInfo(target).path());
        QFile file(target);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        if (isExecutable)
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return target;
    }

    QTemporaryDir folder;
};

struct LinuxHostTest : Folder
{
};

TEST_F(LinuxHostTest, PrettyName)
{
    const std::pair<const char*, QString> cases[] = {
        {"PRETTY_HOSTNAME=\"Anna's Book\"\n", QStringLiteral("Anna's Book")},
        {"CHASSIS=laptop\n PRETTY_HOSTNAME='a \"b\" \\c'\n", QStringLiteral("a \"b\" \\c")},
        {"PRETTY_HOSTNAME=\"say \\\"hi\\\" \\\\\"", QStringLiteral("say \"hi\" \\")},
        {"PRETTY_HOSTNAME=B\xc3\xbcro\n", QStringLiteral("B\u00fcro")},
        {"PRETTY_HOSTNAME=one\nPRETTY_HOSTNAME=two\n", QStringLiteral("two")},
        {"PRETTY_HOSTNAME=\"\"\n", QStringLiteral("plain")},
        {"#PRETTY_HOSTNAME=x\n", QStringLiteral("plain")},
        {"PRETTY_HOSTNAME=\"open", QStringLiteral("open")},
        {"", QStringLiteral("plain")},
    };
    for (const auto& [content, expected] : cases)
        EXPECT_EQ(LinuxHost(write("machine-info", content), QStringLiteral("plain")).localizedName(),
                  expected);
    EXPECT_EQ(LinuxHost(path("nowhere"), QStringLiteral("plain")).localizedName(), QStringLiteral("plain"));
    EXPECT_FALSE(LinuxHost(path("nowhere")).localizedName().isEmpty());
}

TEST(LinuxClock, IsTheSystemsTime)
{
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = LinuxClock().now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, QDateTime::currentDateTime());
}

struct LinuxSystemFilesTest : Folder
{
};

TEST_F(LinuxSystemFilesTest, OnlyDictionariesCount)
{
    const QVariantMap dictionary = {{QStringLiteral("ProductVersion"), QStringLiteral("15.1")}};
    write("System/a.plist", xmlPropertyList(dictionary));
    write("System/b.plist", xmlPropertyList(QVariantList{1}));
    write("System/c.plist", "no property list");
    const LinuxSystemFiles files(folder.path());
    EXPECT_EQ(files.propertyList(QStringLiteral("/System/a.plist")), dictionary);
    EXPECT_EQ(files.propertyList(QStringLiteral("/System/b.plist")), std::nullopt);
    EXPECT_EQ(files.propertyList(QStringLiteral("/System/c.plist")), std::nullopt);
    EXPECT_EQ(files.propertyList(QStringLiteral("/System/d.plist")), std::nullopt);
}

struct LinuxBundleTest : Folder
{
};

TEST_F(LinuxBundleTest, IsTwoFoldersAboveTheRealProgramsFolder)
{
    const QString program = write("Helper.app/Contents/Linux/helper", "");
    const QVariantMap info = {{QStringLiteral("CFBundleVersion"), QStringLiteral("7")}};
    ASSERT_TRUE(QFile::link(program, path("link")));
    const QString bundlePath = QDir(path("Helper.app")).canonicalPath();
    EXPECT_EQ(LinuxBundle(program).path(), bundlePath);
    EXPECT_EQ(LinuxBundle(path("link")).path(), bundlePath);
    EXPECT_EQ(LinuxBundle(program).infoDictionary(), std::nullopt);
    write("Helper.app/Contents/Info.plist", xmlPropertyList(info));
    EXPECT_EQ(LinuxBundle(path("link")).infoDictionary(), info);
    EXPECT_EQ(LinuxBundle(path("nowhere")).path(), QString());
    EXPECT_EQ(LinuxBundle(path("nowhere")).infoDictionary(), std::nullopt);
}

/// Counts the warnings of the workspace.
int warnings = 0;

void countWarning(QtMsgType type, const QMessageLogContext& context, const QString& /*message*/)
{
    if (type == QtWarningMsg && std::string_view(context.category) == "quindle.workspace")
        ++warnings;
}

struct LinuxWorkspaceTest : Folder
{
    LinuxWorkspaceTest() { warnings = 0; }

    /// What a launched program wrote into the file, as soon as it has.
    QByteArray written(const char* name) const
    {
        for (int i = 0; i < 1000; ++i) {
            QFile file(path(name));
            if (file.open(QIODevice::ReadOnly)) {
                const QByteArray content = file.readAll();
                if (content.endsWith('\n'))
                    return content;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return {};
    }

    QByteArray scriptThatNotes(const char* name) const
    {
        return "#!/bin/sh\necho \"$0|$*\" > " + path(name).toUtf8() + '\n';
    }
};

TEST_F(LinuxWorkspaceTest, RunsAProgramThatIsNoChild)
{
    const QString program = write("program", scriptThatNotes("note"), true);
    LinuxWorkspace({folder.path()}).launchApplication(program);
    EXPECT_EQ(written("note"), program.toUtf8() + "|\n");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1); // ECHILD: nothing to wait for
}

TEST_F(LinuxWorkspaceTest, GivesFoldersAndFilesToTheDesktop)
{
    const QString document = write("document", "text");
    const QString handler = write("bin/gio", scriptThatNotes("gio-note"), true);
    LinuxWorkspace({path("bin")}).launchApplication(document);
    EXPECT_EQ(written("gio-note"), handler.toUtf8() + "|open " + document.toUtf8() + '\n');
    const QString preferred = write("bin/xdg-open", scriptThatNotes("xdg-note"), true);
    LinuxWorkspace({path("bin")}).launchApplication(folder.path());
    EXPECT_EQ(written("xdg-note"), preferred.toUtf8() + '|' + folder.path().toUtf8() + '\n');
}

TEST_F(LinuxWorkspaceTest, RunsTheApplicationInAFolder)
{
    write("bin/gio", scriptThatNotes("gio-note"), true);
    const QString program =
        write("Quindle.app/Contents/Linux/quindle", scriptThatNotes("application-note"), true);
    LinuxWorkspace({path("bin")}).launchApplication(folder.path());
    EXPECT_EQ(written("application-note"), program.toUtf8() + "|\n");
    EXPECT_FALSE(QFile::exists(path("gio-note")));
}

TEST_F(LinuxWorkspaceTest, OpensWhatHasANameThatIsNotUtf8)
{
    const QByteArray odd = QFile::encodeName(path("odd")) + "\xff";
    ASSERT_EQ(::mkdir(odd.constData(), 0700), 0);
    write("bin/xdg-open", scriptThatNotes("xdg-note"), true);
    LinuxWorkspace({path("bin")}).launchApplication(pathText(odd));
    EXPECT_TRUE(written("xdg-note").endsWith('|' + odd + '\n'));
    ::rmdir(odd.constData());
}

TEST_F(LinuxWorkspaceTest, KeepsItsOwnMemoryOutOfCoreDumpsButNotThatOfTheLaunched)
{
    const auto filter = [] {
        QFile file(QStringLiteral("/proc/self/coredump_filter"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    const QString program =
        write("program", "#!/bin/sh\ncat /proc/self/coredump_filter > " + path("note").toUtf8() + '\n', true);
    keepMemoryOutOfCoreDumps();
    EXPECT_EQ(filter(), "00000010");
    LinuxWorkspace({folder.path()}).launchApplication(program);
    EXPECT_EQ(written("note"), "00000033\n");
    EXPECT_EQ(filter(), "00000010");
    takeWholeCoreDumps();
    EXPECT_EQ(filter(), "00000033");
}

TEST_F(LinuxWorkspaceTest, LogsAFailureOnce)
{
    const QtMessageHandler before = qInstallMessageHandler(countWarning);
    LinuxWorkspace workspace({path("bin")});
    for (int i = 0; i < 3; ++i) {
        workspace.launchApplication(path("nowhere"));
        workspace.launchApplication(folder.path()); // no handler is installed
        workspace.launchApplication(QString());
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings, 3);
}

} // namespace
