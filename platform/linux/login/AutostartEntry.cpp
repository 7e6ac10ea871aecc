#include "platform/linux/login/AutostartEntry.h"

#include <algorithm>

#include "common/Paths.h"
#include "platform/FileUrl.h"
#include "platform/linux/login/DesktopEntry.h"
#include "platform/posix/ProgramFile.h"

namespace quindle {

namespace {

constexpr QStringView programInBundle(u"/Contents/Linux/quindle-helper");

// Not "~", which LXQt replaces itself before the shell does.
constexpr QByteArrayView shellInHome("cd && exec ./");

/// Whether every session starts what an entry names like this. The format has no way to write an equals sign
/// in a program's path. All other characters can be quoted; but GLib looks for a program with two percent
/// signs where "%%" means one, and neither dex nor LXQt resolves the escapes of the rest. GLib ignores a
/// value that is not UTF-8.
bool isReadEverywhere(const QByteArray& path)
{
    return path.isValidUtf8() && std::none_of(path.begin(), path.end(), [](char c) {
               return QByteArrayView("\"`$\\%=").contains(c) || (c >= 0 && c < ' ') || c == 0x7f;
           });
}

/// Whether a shell reads it as one word without quotes.
bool isPlainWord(const QByteArray& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               QByteArrayView("/._-").contains(c);
    });
}

/// The program that a command runs; through a shell too, in the form that `startCommand` writes.
QByteArray programOf(const QList<QByteArray>& arguments, const QString& home)
{
    const bool isShell = arguments.size() == 3 && arguments[0] == "sh" && arguments[1] == "-c" &&
                         arguments[2].startsWith(shellInHome);
    if (!isShell || home.isEmpty())
        return arguments.first();
    return pathBytes(home) + '/' + arguments[2].mid(shellInHome.size());
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

/// "TryExec" names a program without which the entry does not count.
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

StartCommand startCommand(const QString& program, const QString& link, const QString& home)
{
    const bool isPlain = isReadEverywhere(pathBytes(program));
    StartCommand direct{execValue(pathBytes(program)), false, isPlain};
    if (link.isEmpty() || isPlain)
        return direct;
    // The link has a plain name in the settings folder, whose path rarely has unusual characters.
    if (isReadEverywhere(pathBytes(link)))
        return {execValue(pathBytes(link)), true};
    if (home.isEmpty() || !link.startsWith(home + u'/'))
        return direct;
    const QByteArray inHome = pathBytes(link.mid(home.size() + 1));
    return isPlainWord(inHome) ? StartCommand{"sh -c \"" + shellInHome.toByteArray() + inHome + '"', true}
                               : direct;
}

std::optional<QString> urlStartedBy(const QByteArray& entryBytes, const QStringList& programFolders,
                                    const QString& home)
{
    const auto entry = desktopEntryFromBytes(entryBytes);
    if (!entry || isSwitchedOff(*entry) || !isApplication(*entry) || !isInstalled(*entry, programFolders))
        return std::nullopt;
    // OnlyShowIn and NotShowIn are not asked: such an entry starts the program in some session.
    const auto arguments = execArguments(entry->value("Exec"));
    QString program = arguments ? programFile(programOf(*arguments, home), programFolders) : QString();
    if (program.isEmpty())
        return std::nullopt;
    // The helper's program stands for its bundle, which is what login items name.
    if (program.endsWith(programInBundle))
        program.chop(programInBundle.size());
    return normalFileUrl(fileUrl(program));
}

QByteArray autostartEntry(const QByteArray& command)
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quindle Helper\n"
           "Comment=Battery charge, health and time in the panel\n"
           "Exec=" +
           command +
           "\n"
           "Icon=quindle-helper\n"
           "StartupNotify=false\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

} // namespace quindle
