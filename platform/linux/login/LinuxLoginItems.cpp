#include "platform/linux/login/LinuxLoginItems.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <unistd.h>

#include <QLoggingCategory>

#include "common/Paths.h"
#include "platform/Bundle.h"
#include "platform/FileUrl.h"
#include "platform/linux/login/AutostartEntry.h"
#include "platform/linux/os/SmallFile.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/FileLock.h"
#include "platform/posix/FileReplacement.h"
#include "platform/posix/ProgramFile.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(loginLog, "quindle.loginitems")

constexpr std::chrono::milliseconds lockPatience(250); // writers hold the lock for milliseconds

constexpr QByteArrayView suffix(".desktop");

QByteArray ownEntryName()
{
    return "com.fernhollow.Quindle-Helper.desktop";
}

/// The names of the entries in a folder, unsorted; none when it is not there yet, nothing when it cannot be
/// read.
std::optional<QList<QByteArray>> entryNames(const QByteArray& folder)
{
    const std::unique_ptr<DIR, CloseFolder> opened(::opendir(folder.constData()));
    if (!opened)
        return errno == ENOENT ? std::optional(QList<QByteArray>()) : std::nullopt;
    QList<QByteArray> names;
    while (const dirent* entry = ::readdir(opened.get()))
        if (const QByteArrayView name(entry->d_name); name.endsWith(suffix) && !name.startsWith('.'))
            names.append(name.toByteArray());
    return names;
}

bool comesBefore(const QByteArray& left, const QByteArray& right)
{
    const bool isLeftOwn = left == ownEntryName();
    const bool isRightOwn = right == ownEntryName();
    // The order needs no file of its own: "in front of all" is simply ours.
    return isLeftOwn == isRightOwn ? left < right : isLeftOwn;
}

QString bundleOf(const QString& url)
{
    QString path = pathOfFileUrl(url);
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

QString reason(int error)
{
    return error == 0 ? QString() : qt_error_string(error);
}

} // namespace

LoginItemPlaces loginItemPlaces(const QString& bundlePath)
{
    const QString settings = settingsFolder();
    if (settings.isEmpty())
        return {
            .entries = {}, .lock = {}, .link = {}, .bundle = bundlePath, .programFolders = {}, .home = {}};
    return {.entries = configurationFolder() + QStringLiteral("/autostart"),
            .lock = settings + QStringLiteral("/autostart.lock"),
            .link = settings + QStringLiteral("/quindle-helper"),
            .bundle = bundlePath,
            .programFolders = {},
            .home = homeFolder()};
}

LinuxLoginItems::LinuxLoginItems(LoginItemPlaces places, SettingsAccess access)
    : m_places(std::move(places))
    , m_access(access)
{
}

std::optional<std::vector<LoginItems::Item>> LinuxLoginItems::snapshot()
{
    if (m_places.entries.isEmpty())
        return std::nullopt;
    auto names = entryNames(pathBytes(m_places.entries));
    if (!names)
        return std::nullopt;
    std::sort(names->begin(), names->end(), comesBefore);
    std::vector<Item> items;
    for (const QByteArray& name : *names) {
        // Never forgotten: an item keeps its number when others come and go.
        if (!m_known.contains(name))
            m_known.append(name);
        items.push_back(static_cast<Item>(m_known.indexOf(name)));
    }
    return items;
}

std::optional<QString> LinuxLoginItems::resolve(Item item)
{
    return urlOf(m_known.value(item));
}

void LinuxLoginItems::insertBeforeFirst(const QString& fileUrl)
{
    report(enter(ownEntryName(), bundleOf(fileUrl)));
}

void LinuxLoginItems::remove(Item item)
{
    report(erase(m_known.value(item)));
}

void LinuxLoginItems::setEnabled(const QString& identifier, bool enabled)
{
    const QByteArray entryName = pathBytes(identifier) + suffix.toByteArray();
    // It becomes a file name.
    if (identifier.isEmpty() || entryName.contains('/') || entryName.contains('\0'))
        return report(QStringLiteral("\"%1\" names no entry").arg(identifier));
    const QString helper = helperBundlePath(m_places.bundle);
    const QString helperUrl = normalFileUrl(fileUrl(helper));
    if (!enabled)
        return report(disable(entryName, helperUrl));
    const auto items = snapshot();
    const bool isThere = items && std::any_of(items->cbegin(), items->cend(),
                                              [&](Item item) { return resolve(item) == helperUrl; });
    // Another entry that starts the helper is enough: two of them would start it twice.
    if (!isThere)
        report(enter(entryName, helper));
}

QString LinuxLoginItems::pathOf(const QByteArray& entryName) const
{
    return m_places.entries + u'/' + pathText(entryName);
}

/// A longer file is not an autostart entry, and would not be read to its end.
std::optional<QString> LinuxLoginItems::urlOf(const QByteArray& entryName) const
{
    constexpr qsizetype limit = qsizetype(60) * 1024;
    if (entryName.isEmpty())
        return std::nullopt;
    const auto bytes = readSmallFile(pathOf(entryName));
    return bytes && bytes->size() <= limit ? urlStartedBy(*bytes, m_places.programFolders, m_places.home)
                                           : std::nullopt;
}

/// Why the entry could not be made; empty on success.
QString LinuxLoginItems::enter(const QByteArray& entryName, const QString& bundlePath) const
{
    const QString program = bundleProgram(bundlePath);
    if (m_access == SettingsAccess::ReadOnly)
        return QStringLiteral("they are read-only");
    if (m_places.entries.isEmpty())
        return QStringLiteral("there is no folder for them");
    if (programFile(pathBytes(program), {}).isEmpty())
        return QStringLiteral("%1 is not a program").arg(program);
    const QByteArray folder = pathBytes(m_places.entries);
    const QByteArray lockPath = pathBytes(m_places.lock);
    for (const QByteArray& needed : {folder, folderOf(lockPath)})
        if (const int error = makeFolder(needed))
            return reason(error);
    const auto lock = FileLock::take(lockPath, lockPatience);
    if (!lock)
        return reason(errno);
    // The link before the entry: an entry that names a missing link starts nothing.
    const StartCommand command = startCommand(program, m_places.link, m_places.home);
    if (const int error =
            command.isThroughLink ? replaceLink(pathBytes(m_places.link), pathBytes(program)) : 0)
        return reason(error);
    if (!command.isForEverySession)
        qCWarning(loginLog).noquote()
            << QStringLiteral("not every session starts %1 at login: its path has one of "
                              "\" ` $ \\ % =, and so has that of the settings")
                   .arg(program);
    const QByteArray path = folder + '/' + entryName;
    removeLeftovers(path);
    // A link in the entry's place is replaced itself: its target is not ours.
    return reason(replaceFile(path, autostartEntry(command.exec)));
}

/// Takes out every entry that starts the helper, and the named one where it starts anything. An entry that
/// starts nothing stays: a hidden one keeps an entry of the system's of the same name from starting.
QString LinuxLoginItems::disable(const QByteArray& entryName, const QString& helperUrl)
{
    QString failure;
    for (const Item item : snapshot().value_or(std::vector<Item>())) {
        const auto url = resolve(item);
        if (!url || (*url != helperUrl && m_known.value(item) != entryName))
            continue;
        const QString failed = erase(m_known.value(item));
        // The others are still tried: one that stays would start the helper.
        failure = failed.isEmpty() ? failure : failed;
    }
    return failure;
}

QString LinuxLoginItems::erase(const QByteArray& entryName) const
{
    if (m_access == SettingsAccess::ReadOnly)
        return QStringLiteral("they are read-only");
    if (entryName.isEmpty())
        return {};
    // Already gone counts as removed.
    if (::unlink(pathBytes(pathOf(entryName)).constData()) != 0 && errno != ENOENT)
        return reason(errno);
    // Nothing else needs the link.
    if (entryName == ownEntryName())
        ::unlink(pathBytes(m_places.link).constData());
    return {};
}

void LinuxLoginItems::report(const QString& failure)
{
    if (!failure.isEmpty() && failure != m_failure)
        qCWarning(loginLog).noquote()
            << QStringLiteral("cannot change the login items in %1: %2").arg(m_places.entries, failure);
    // Even an empty one: the same failure after a success is news.
    m_failure = failure;
}

} // namespace quindle
