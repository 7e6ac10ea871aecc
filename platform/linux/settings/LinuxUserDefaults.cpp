#include "platform/linux/settings/LinuxUserDefaults.h"

#include <cerrno>
#include <optional>
#include <thread>

#include <QLoggingCategory>

#include "common/Paths.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/posix/FileLock.h"
#include "platform/posix/FileReplacement.h"
#include "plist/PropertyList.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(settingsLog, "quindle.settings")

using State = PropertyListFile::State;

// Writers hold the lock for milliseconds; one that holds it longer was stopped.
constexpr std::chrono::milliseconds writerPatience(5000);
// A reader waits on the main thread, for the rare file that has to be moved away.
constexpr std::chrono::milliseconds readerPatience(100);

// An editor that writes a file in its place is given this long to finish.
constexpr std::chrono::milliseconds editorPatience(50);

QString filePath(const QString& folder, const QString& domain)
{
    return folder.isEmpty() ? QString() : folder + u'/' + domain + QStringLiteral(".plist");
}

std::optional<FileLock> lockFor(const QByteArray& path, std::chrono::milliseconds patience)
{
    return FileLock::take(path + ".lock", patience);
}

} // namespace

LinuxUserDefaults::LinuxUserDefaults(const QString& path, SettingsAccess access)
    : m_access(access)
    , m_file(pathBytes(path))
{
}

QVariant LinuxUserDefaults::object(const QString& key) const
{
    refresh();
    return m_file.contents().value(key);
}

QVariantMap LinuxUserDefaults::dictionaryRepresentation() const
{
    refresh();
    return m_file.contents();
}

void LinuxUserDefaults::refresh() const
{
    const State state = m_file.refresh();
    if (state == State::Damaged) {
        // A file that could not be moved is not tried again at every read.
        if (!m_leftDamaged)
            m_leftDamaged = !setAside();
        return;
    }
    m_leftDamaged = false;
    if (state == State::Unreadable)
        reportReading(QStringLiteral("cannot read %1: %2")
                          .arg(pathText(m_file.path()), qt_error_string(m_file.error())));
    else
        m_readFailure.clear();
}

void LinuxUserDefaults::reportReading(const QString& failure) const
{
    if (failure == m_readFailure)
        return;
    m_readFailure = failure;
    qCWarning(settingsLog).noquote() << failure;
}

bool LinuxUserDefaults::setAside() const
{
    if (m_access == SettingsAccess::ReadOnly) {
        reportReading(QStringLiteral("%1 is damaged").arg(pathText(m_file.path())));
        return false;
    }
    const auto lock = lockFor(m_file.path(), readerPatience);
    if (lock)
        return setAsideLocked();
    reportReading(QStringLiteral("%1 is damaged and cannot be set aside: %2")
                      .arg(pathText(m_file.path()), qt_error_string(errno)));
    return false;
}

bool LinuxUserDefaults::setAsideLocked() const
{
    // Read again under the lock: another process may have repaired it or set it aside meanwhile.
    if (m_file.reread() == State::Damaged && m_file.isFresh()) {
        std::this_thread::sleep_for(editorPatience);
        m_file.reread();
    }
    if (m_file.refresh() != State::Damaged)
        return true;
    QByteArray newPath;
    const int error = setAsideAsDamaged(linkTarget(m_file.path()), newPath);
    if (error != 0) {
        reportReading(QStringLiteral("%1 is damaged and cannot be set aside: %2")
                          .arg(pathText(m_file.path()), qt_error_string(error)));
        return false;
    }
    qCWarning(settingsLog).noquote()
        << QStringLiteral("%1 is damaged, set aside as %2").arg(pathText(m_file.path()), pathText(newPath));
    m_file.refresh();
    return true;
}

bool LinuxUserDefaults::holds(const QString& key, const QByteArray& xml) const
{
    // As text, because two values of different types can compare equal.
    const auto entry = m_file.contents().constFind(key);
    return entry != m_file.contents().cend() && xmlPropertyList(*entry) == xml;
}

void LinuxUserDefaults::setObject(const QString& key, const QVariant& value)
{
    const QString failure = store(key, value);
    // Once, until a write succeeds: a full disk fails at every change.
    if (!failure.isEmpty() && failure != m_writeFailure)
        qCWarning(settingsLog).noquote()
            << QStringLiteral("cannot write %1: %2").arg(pathText(m_file.path()), failure);
    m_writeFailure = failure;
}

QString LinuxUserDefaults::file() const
{
    return pathText(m_file.path());
}

QString LinuxUserDefaults::store(const QString& key, const QVariant& value)
{
    const QByteArray xml = xmlPropertyList(value);
    if (xml.isEmpty())
        return QStringLiteral("the value of \"%1\" is not of a property-list type").arg(key);
    // Checked without the lock first: most stored values are there already.
    refresh();
    if (holds(key, xml))
        return {};
    if (m_access == SettingsAccess::ReadOnly)
        return QStringLiteral("it was opened read-only");
    if (m_file.path().isEmpty())
        return QStringLiteral("there is no folder for settings");
    if (const int error = makeFolder(folderOf(m_file.path())))
        return qt_error_string(error);
    const auto lock = lockFor(m_file.path(), writerPatience);
    return lock ? storeLocked(key, value, xml) : qt_error_string(errno);
}

QString LinuxUserDefaults::storeLocked(const QString& key, const QVariant& value, const QByteArray& xml)
{
    // Under the lock and from the disk, so that another writer's keys are not lost.
    if (m_file.reread() == State::Damaged && !setAsideLocked())
        return QStringLiteral("the file is damaged and cannot be set aside");
    if (m_file.refresh() == State::Unreadable)
        return qt_error_string(m_file.error());
    if (holds(key, xml))
        return {};
    // A link's target is replaced, so that the link stays a link.
    const QByteArray target = linkTarget(m_file.path());
    // Safe now: their writer no longer holds the lock.
    removeLeftovers(target);
    QVariantMap changed = m_file.contents();
    changed.insert(key, value);
    const int error = replaceFile(target, xmlPropertyList(changed));
    return error == 0 ? QString() : qt_error_string(error);
}

LinuxUserDefaultsDatabases::LinuxUserDefaultsDatabases(QString folder, SettingsAccess access)
    : m_folder(std::move(folder))
    , m_access(access)
    , m_standard(filePath(m_folder, QStringLiteral("com.fernhollow.Quindle-Helper")), access)
{
}

UserDefaults* LinuxUserDefaultsDatabases::suite(const QString& suiteName)
{
    // A name with a slash would be a file anywhere else.
    if (m_folder.isEmpty() || suiteName.isEmpty() || suiteName.contains(u'/'))
        return nullptr;
    auto& database = m_suites[suiteName];
    if (!database)
        database = std::make_unique<LinuxUserDefaults>(filePath(m_folder, suiteName), m_access);
    return database.get();
}

} // namespace quindle
