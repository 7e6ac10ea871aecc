#include "platform/linux/login/AutostartEntry.h"

#include "common/Paths.h"
#include "tests/platform/linux/login/AutostartFolder.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

namespace {

/// What an entry of these lines starts; "{lib}" and "{bin}" stand for the folders.
class AutostartEntryTest : public testing::Test
{
protected:
    AutostartEntryTest()
    {
        QFile::link(folder.program(), folder.path(QStringLiteral("bin/quindle-helper")));
        QFile::link(folder.path(QStringLiteral("bin/nowhere")), folder.path(QStringLiteral("bin/dangling")));
        AutostartFolder::write(folder.path(QStringLiteral("bin/text")), "no program");
        AutostartFolder::addProgram(folder.bundle() + QStringLiteral("/Contents/Linux/quindle-inspect"));
        AutostartFolder::addProgram(folder.path(QStringLiteral("bin/with blank")));
    }

    std::optional<QString> started(QByteArray lines) const
    {
        lines.replace("{bundle}", QFile::encodeName(folder.bundle()));
        lines.replace("{bin}", QFile::encodeName(folder.path(QStringLiteral("bin"))));
        return urlStartedBy("[Desktop Entry]\n" + lines + '\n', {folder.path(QStringLiteral("bin"))}, {});
    }

    QString inBin(const char* name) const
    {
        return fileUrl(folder.path(QStringLiteral("bin/")) + QLatin1String(name));
    }

    AutostartFolder folder;
};

TEST_F(AutostartEntryTest, TheHelpersProgramIsItsBundle)
{
    for (const char* lines : {
             "Type=Application\nExec=\"{bundle}/Contents/Linux/quindle-helper\"",
             "Exec=\"{bundle}/Contents/Linux/quindle-helper\"",
             "Exec=\"{bundle}/Contents/Linux/quindle-helper\" --argument %U",
             "Exec=quindle-helper",
             "Exec=\"quindle-helper\"",
             "Exec={bin}/quindle-helper",
             "Exec={bin}/../bin/./quindle-helper",
             "Exec=quindle-helper\nTryExec=other",
             "Exec=quindle-helper\nTryExec={bin}/other",
             "Exec=quindle-helper\nOnlyShowIn=GNOME;",
             "Exec=quindle-helper\nNotShowIn=XFCE;LXQt;",
             "Exec=quindle-helper\nHidden=false\nX-GNOME-Autostart-enabled=true",
             "Exec=quindle-helper\nNoDisplay=true",
         })
        EXPECT_EQ(started(lines), folder.bundleUrl()) << lines;
}

TEST_F(AutostartEntryTest, AnyOtherProgramIsItself)
{
    EXPECT_EQ(started("Exec=other quindle-helper"), inBin("other"));
    EXPECT_EQ(started("Exec=\"{bin}/with blank\""), inBin("with blank"));
    EXPECT_EQ(started("Exec=\"{bundle}/Contents/Linux/quindle-inspect\""),
              fileUrl(folder.bundle() + QStringLiteral("/Contents/Linux/quindle-inspect")));
}

TEST_F(AutostartEntryTest, WhatStartsNothingDoesNotResolve)
{
    for (const char* lines : {
             "",
             "Exec=",
             "Exec=%f",
             "Exec=\"quindle-helper",
             "Exec=quindle-helper %x",
             "Exec={bundle}/Contents/Linux/quindle-helper", // the blank splits it in two
             "Exec=./quindle-helper",
             "Exec=bin/quindle-helper",
             "Exec=not-there",
             "Exec={bin}/not-there",
             "Exec={bin}/text",
             "Exec={bin}",
             "Exec={bin}/dangling",
             "Exec=quindle-helper\nHidden=true",
             "Exec=quindle-helper\nX-GNOME-Autostart-enabled=false",
             "Exec=quindle-helper\nTryExec=not-there",
             "Exec=quindle-helper\nTryExec=",
             "Type=Link\nExec=quindle-helper",
             "Type=Service\nExec=quindle-helper",
             "[Desktop Action x]\nExec=quindle-helper",
         })
        EXPECT_EQ(started(lines), std::nullopt) << lines;
    EXPECT_EQ(urlStartedBy("Exec=other\n", {folder.path(QStringLiteral("bin"))}, {}), std::nullopt);
}

TEST_F(AutostartEntryTest, TheSearchPathIsAskedWithoutFoldersOfItsOwn)
{
    EXPECT_EQ(urlStartedBy("[Desktop Entry]\nExec=sh\n", {}, {}),
              fileUrl(QFileInfo(QStringLiteral("/bin/sh")).canonicalFilePath()));
}

TEST_F(AutostartEntryTest, AWrittenEntryStartsTheBundle)
{
    EXPECT_EQ(urlStartedBy(autostartEntry(startCommand(folder.program(), {}, {}).exec), {}, {}),
              folder.bundleUrl());
}

TEST_F(AutostartEntryTest, ACommandIsOneThatEverySessionReads)
{
    const QString link = QStringLiteral("/home/jane/.config/quindle/quindle-helper");
    const QString home = QStringLiteral("/home/jane");
    const auto command = [&](const QByteArray& program, const QString& linkPath, const QString& homePath) {
        return startCommand(pathText(program), linkPath, homePath).exec;
    };
    for (const char* plain :
         {"/opt/q", "/opt/Quindle Helper (new)/q", "/opt/zoë's & co/~q#1;<>*?|!{}[]^+,@:'"})
        EXPECT_EQ(command(plain, link, home), '"' + QByteArray(plain) + '"');
    for (const char* odd : {"/opt/100%/q", "/opt/a=b/q", "/opt/$q", "/opt/`q`", "/opt/a\\b", "/opt/\"q\"",
                            "/opt/\xff", "/opt/a\nb"})
        EXPECT_EQ(command(odd, link, home), '"' + link.toUtf8() + '"') << odd;
    const QString oddHome = QStringLiteral("/home/100%");
    const QString linkInOddHome = oddHome + QStringLiteral("/.config/quindle/quindle-helper");
    EXPECT_EQ(command("/home/100%/q", linkInOddHome, oddHome),
              "sh -c \"cd && exec ./.config/quindle/quindle-helper\"");
    // No form is left that all of them read.
    EXPECT_EQ(command("/opt/100%/q", QStringLiteral("/100%/quindle-helper"), home), "\"/opt/100%%/q\"");
    EXPECT_EQ(command("/opt/100%/q", QStringLiteral("/home/100%/$c/quindle-helper"), oddHome),
              "\"/opt/100%%/q\"");
    EXPECT_EQ(command("/opt/100%/q", {}, home), "\"/opt/100%%/q\"");
}

TEST_F(AutostartEntryTest, ACommandInTheHomeFolderIsSeenThroughItsShell)
{
    const QString home = folder.path(QStringLiteral("100%"));
    QDir().mkpath(home);
    QFile::link(folder.program(), home + QStringLiteral("/link"));
    const QByteArray entry =
        autostartEntry(startCommand(QStringLiteral("/odd%"), home + QStringLiteral("/link"), home).exec);
    EXPECT_EQ(urlStartedBy(entry, {}, home), folder.bundleUrl());
    EXPECT_NE(urlStartedBy(entry, {}, {}), folder.bundleUrl());
    EXPECT_NE(urlStartedBy(entry, {}, folder.path(QStringLiteral("other"))), folder.bundleUrl());
}

TEST_F(AutostartEntryTest, AWrittenEntryIsWhatSessionsRead)
{
    EXPECT_EQ(autostartEntry("\"/usr/lib/Quindle Helper/quindle-helper\""),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Quindle Helper\n"
              "Comment=Battery charge, health and time in the panel\n"
              "Exec=\"/usr/lib/Quindle Helper/quindle-helper\"\n"
              "Icon=quindle-helper\n"
              "StartupNotify=false\n"
              "Terminal=false\n"
              "X-GNOME-Autostart-enabled=true\n");
}

} // namespace

} // namespace quindle
