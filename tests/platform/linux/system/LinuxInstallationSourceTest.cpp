#include "platform/linux/system/LinuxInstallationSource.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

using Kind = InstallationSource::Kind;

class LinuxInstallationSourceTest : public testing::Test
{
protected:
    QTemporaryDir root;
    QString bundle =
        QStringLiteral("/usr/lib/Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app");
    QByteArray file = bundle.toUtf8() + "/Contents/Info.plist";

    void write(const QString& path, const QByteArray& contents, bool executable = false)
    {
        const QString whole = root.filePath(path);
        QDir().mkpath(QFileInfo(whole).path());
        QFile out(whole);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(contents);
        if (executable)
            out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void expectPackage(const char* manager, const char* package)
    {
        const InstallationSource source = installationSource(bundle, root.path());
        EXPECT_EQ(source.kind, Kind::Package);
        EXPECT_EQ(source.manager, QString::fromLatin1(manager));
        EXPECT_EQ(source.package, QString::fromLatin1(package));
    }
};

TEST_F(LinuxInstallationSourceTest, WithoutDatabasesNobodyKnows)
{
    EXPECT_EQ(installationSource(bundle, root.path()).kind, Kind::Elsewhere);
    EXPECT_EQ(installationSource(QString(), root.path()).kind, Kind::Elsewhere);
}

TEST_F(LinuxInstallationSourceTest, IsThePackageOfDpkg)
{
    write(QStringLiteral("var/lib/dpkg/info/quindle-helper.list"), "/.\n/usr\n" + file + "\n");
    expectPackage("dpkg", "quindle-helper");
    write(QStringLiteral("usr/bin/apt"), "");
    expectPackage("apt", "quindle-helper");
}

TEST_F(LinuxInstallationSourceTest, IsThePackageOfDpkgForOneArchitecture)
{
    write(QStringLiteral("var/lib/dpkg/info/quindle-helper:amd64.list"), file + "\n");
    expectPackage("dpkg", "quindle-helper");
}

TEST_F(LinuxInstallationSourceTest, APackageThatHoldsAnotherCopyIsNotIt)
{
    write(QStringLiteral("var/lib/dpkg/info/quindle-helper.list"), "/opt" + file + "\n" + file + ".old\n");
    write(QStringLiteral("var/lib/dpkg/info/quindle-helper.md5sums"), file + "\n");
    EXPECT_EQ(installationSource(bundle, root.path()).kind, Kind::Elsewhere);
}

TEST_F(LinuxInstallationSourceTest, IsThePackageOfPacman)
{
    write(QStringLiteral("var/lib/pacman/local/quindle-helper-0.5-1/files"),
          "%FILES%\nusr/\n" + file.mid(1) + "\n");
    expectPackage("pacman", "quindle-helper");
}

TEST_F(LinuxInstallationSourceTest, IsWhatRpmAnswers)
{
    const QByteArray answer = "#!/bin/sh\n"
                              "[ \"$1 $2 $3\" = '-qf --queryformat %{NAME}' ] && [ \"$4\" = '" +
                              file + "' ] && printf quindle\n";
    write(QStringLiteral("usr/bin/rpm"), answer, true);
    expectPackage("rpm", "quindle");
    write(QStringLiteral("usr/bin/zypper"), "");
    expectPackage("zypper", "quindle");
}

// rpm takes orders for the shell in options, and a path from a machine file could be one.
TEST_F(LinuxInstallationSourceTest, RpmIsAskedForAbsolutePathsOnly)
{
    const QByteArray asked = root.filePath(QStringLiteral("asked")).toUtf8();
    write(QStringLiteral("usr/bin/rpm"), "#!/bin/sh\necho \"$4\" >> '" + asked + "'\nprintf quindle\n", true);
    for (const char* path : {"--eval=%(touch x)", "-x", "relative", "../../x"})
        EXPECT_EQ(installationSource(QString::fromLatin1(path), root.path()).kind, Kind::Elsewhere) << path;
    EXPECT_FALSE(QFile::exists(root.filePath(QStringLiteral("asked"))));
    expectPackage("rpm", "quindle");
}

TEST_F(LinuxInstallationSourceTest, WhatRpmDoesNotOwnIsNoPackage)
{
    write(QStringLiteral("usr/bin/rpm"), "#!/bin/sh\necho \"file $4 is not owned by any package\"\nexit 1\n",
          true);
    EXPECT_EQ(installationSource(bundle, root.path()).kind, Kind::Elsewhere);
}

TEST_F(LinuxInstallationSourceTest, ABuildFolderIsABuild)
{
    const QString name = QStringLiteral("Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app");
    QDir().mkpath(root.filePath(name));
    EXPECT_EQ(installationSource(root.filePath(name), root.path()).kind, Kind::Elsewhere);
    write(QStringLiteral("CMakeCache.txt"), "");
    EXPECT_EQ(installationSource(root.filePath(name), root.path()).kind, Kind::Build);
}

} // namespace
