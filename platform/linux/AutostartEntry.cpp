#include "platform/linux/AutostartEntry.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/FileUrl.h"
#include "platform/linux/DesktopEntry.h"

namespace quindle {

namespace {

constexpr QStringView programInBundle(u"/Contents/Linux/quindle-helper");

/// The file of a program that can be run, links followed; empty when there is none.
QString programFile(const QByteArray& program, const QStringList& folders)
{
    const bool isPath = program.contains('/');
    if (program.isEmpty() || program.contains('\0') || (isPath && !program.startsWith('/')))
        return {};
    const QString found = QStandardPaths::findExecutable(QFile::decodeName(program), folders);
    return found.isEmpty() ? QString() : QFileInfo(found).canonicalFilePath();
}

/// Whether sessions start the entry. One key is the format's own; some desktops write the other instead.
bool isSwitchedOff(const DesktopEntry& entry)
{
    const QByteArray enabled = "X-GNOME-Autostart-enabled";
    return isTrue(entry, "Hidden") || (entry.contains(enabled) && !isTrue(entry, enabled));
}

bool isApplication(const DesktopEntry& entry)
{
    return entry.value("Type", "Application") == "Application";
}

/// "TryExec" names a program without which the entry counts for nothing.
bool isInstalled(const DesktopEntry& entry, const QStringList& folders)
{
    const auto tried = entry.constFind("TryExec");
    return tried == entry.cend() || !programFile(unescapedValue(*tried), folders).isEmpty();
}

} // namespace

QString bundleProgram(const QString& bundlePath)
{
    return bundlePath + programInBundle.toString();
}

std::optional<QString> urlStartedBy(const QByteArray& entryBytes, const QStringList& programFolders)
{
    const auto entry = desktopEntryFromBytes(entryBytes);
    if (!entry || isSwitchedOff(*entry) || !isApplication(*entry) || !isInstalled(*entry, programFolders))
        return std::nullopt;
    const auto arguments = execArguments(entry->value("Exec"));
    QString program = arguments ? programFile(arguments->first(), programFolders) : QString();
    if (program.isEmpty())
        return std::nullopt;
    if (program.endsWith(programInBundle))
        program.chop(programInBundle.size());
    return normalFileUrl(fileUrl(program));
}

QByteArray autostartEntry(const QString& program)
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quindle Helper\n"
           "Comment=Battery charge, health and time in the panel\n"
           "Exec=" +
           execValue(QFile::encodeName(program)) +
           "\n"
           "Icon=quindle-helper\n"
           "StartupNotify=false\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

} // namespace quindle
