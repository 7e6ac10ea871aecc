#include "platform/linux/system/LinuxInstallationSource.h"

#include <filesystem>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringList>

#include "common/Paths.h"

namespace quindle {

namespace {

constexpr int longestAnswer = 1000; // milliseconds

/// Packages that could hold the program: their databases have a file or folder for each package, too many to
/// search them all.
QStringList packageNamePattern()
{
    return {QStringLiteral("quindle*")};
}

QString firstInstalled(const QString& root, const QStringList& programs)
{
    for (const QString& program : programs)
        if (QFile::exists(root + QStringLiteral("/usr/bin/") + program))
            return program;
    return programs.constLast();
}

bool hasLine(const QString& file, const QString& line)
{
    QFile list(file);
    if (!list.open(QIODevice::ReadOnly))
        return false;
    return list.readAll().split('\n').contains(pathBytes(line));
}

InstallationSource package(const QString& manager, const QString& name)
{
    return {InstallationSource::Kind::Package, manager, name};
}

/// NAME.list or NAME:ARCHITECTURE.list has one absolute path a line.
InstallationSource fromDpkg(const QString& file, const QString& root)
{
    const QDir lists(root + QStringLiteral("/var/lib/dpkg/info"));
    for (const QString& name : lists.entryList(packageNamePattern(), QDir::Files))
        if (name.endsWith(QStringLiteral(".list")) && hasLine(lists.filePath(name), file))
            return package(firstInstalled(root, {QStringLiteral("apt"), QStringLiteral("dpkg")}),
                           name.chopped(5).section(QLatin1Char(':'), 0, 0));
    return {};
}

/// NAME-VERSION-RELEASE/files has one path a line, without the slash at its front.
InstallationSource fromPacman(const QString& file, const QString& root)
{
    const QDir packages(root + QStringLiteral("/var/lib/pacman/local"));
    for (const QString& name : packages.entryList(packageNamePattern(), QDir::Dirs))
        if (hasLine(packages.filePath(name + QStringLiteral("/files")), file.mid(1)))
            return package(QStringLiteral("pacman"), name.section(QLatin1Char('-'), 0, -3));
    return {};
}

/// Its database has no documented form for others to read.
InstallationSource fromRpm(const QString& file, const QString& root)
{
    const QString program = root + QStringLiteral("/usr/bin/rpm");
    if (!QFile::exists(program))
        return {};
    QProcess rpm;
    rpm.start(program,
              {QStringLiteral("-qf"), QStringLiteral("--queryformat"), QStringLiteral("%{NAME}"), file},
              QIODevice::ReadOnly);
    if (!rpm.waitForFinished(longestAnswer) || rpm.exitStatus() != QProcess::NormalExit ||
        rpm.exitCode() != 0)
        return {};
    return package(
        firstInstalled(root, {QStringLiteral("dnf"), QStringLiteral("zypper"), QStringLiteral("rpm")}),
        QString::fromUtf8(rpm.readAllStandardOutput()).trimmed());
}

/// The build folder holds the tree that starts with the folder "Quindle Helper".
bool isInBuildFolder(const QString& bundlePath)
{
    std::error_code error;
    return std::filesystem::exists(
        pathBytes(bundlePath + QStringLiteral("/../../../../../CMakeCache.txt")).toStdString(), error);
}

} // namespace

InstallationSource installationSource(const QString& bundlePath, const QString& root)
{
    // A machine file may name any path: one that begins with a dash would be an option to rpm.
    if (!bundlePath.startsWith(u'/'))
        return {};
    if (isInBuildFolder(bundlePath))
        return {InstallationSource::Kind::Build, {}, {}};
    // By one of its files: a package of that name may hold another copy.
    const QString file = bundlePath + QStringLiteral("/Contents/Info.plist");
    for (const auto& ask : {fromDpkg, fromPacman, fromRpm}) {
        InstallationSource source = ask(file, root);
        if (source.kind == InstallationSource::Kind::Package)
            return source;
    }
    return {};
}

} // namespace quindle
