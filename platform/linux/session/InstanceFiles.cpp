#include "platform/linux/session/InstanceFiles.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

#include <QLoggingCategory>
#include <QSocketNotifier>
#include <QSysInfo>

#include "common/Paths.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/posix/FileReplacement.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(instanceLog, "quindle.instance")

QString computerName()
{
    QString name = QSysInfo::machineHostName();
    // A host name may hold any characters, a file name may not.
    return name.replace(u'/', u'_');
}

FileDescriptor newSocket()
{
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// Calls `bind` or `connect` with a socket's path; errno's value. An address has room for a short path only,
/// so a long one is given by the descriptor of its folder.
template <typename Call>
int withAddress(Call call, const FileDescriptor& socket, QByteArray path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    FileDescriptor folder;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        folder = FileDescriptor(::open(folderOf(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        path = "/proc/self/fd/" + QByteArray::number(folder.get()) + path.mid(path.lastIndexOf('/'));
    }
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path)
        return ENAMETOOLONG;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const int result =
        call(socket.get(), reinterpret_cast<const sockaddr*>(&address), socklen_t{sizeof address});
    return result == 0 ? 0 : errno;
}

bool isFromSameUser(const FileDescriptor& connection)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    // The kernel says who connected; nothing that the peer sends could be trusted.
    return ::getsockopt(connection.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

StartAnswer givenUp(const QString& fault)
{
    return {StartAnswer::Outcome::GivenUp, fault};
}

} // namespace

std::vector<QString> instanceFileStems(const QString& program, const QString& name)
{
    std::vector<QString> stems;
    const QString file = u'/' + program + u'-';
    if (const QString runtime = runtimeFolder(); !runtime.isEmpty())
        stems.push_back(runtime + file + name);
    if (const QString settings = settingsFolder(); !settings.isEmpty())
        stems.push_back(settings + file + computerName() + u'-' + name);
    return stems;
}

InstanceFiles::InstanceFiles(std::vector<QString> stems)
    : m_stems(std::move(stems))
{
}

InstanceFiles::~InstanceFiles()
{
    if (m_socket.isOpen())
        ::unlink(m_socketPath.constData());
}

StartAnswer InstanceFiles::start()
{
    for (const QString& stem : m_stems)
        if (const auto answer = startAt(stem))
            return *answer;
    return givenUp(
        QStringLiteral(
            "there is neither a session bus nor a folder where a second start could find this one%1; "
            "set XDG_RUNTIME_DIR to a folder of your own that others cannot write to")
            .arg(m_faults));
}

/// Nothing where no lock can be taken.
std::optional<StartAnswer> InstanceFiles::startAt(const QString& stem)
{
    constexpr std::chrono::seconds patience(3);
    constexpr std::chrono::milliseconds pause(20);
    // A folder that cannot be made is a better reason to report than the lock that fails in it.
    const int folderError = makeFolder(folderOf(pathBytes(stem)));
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < deadline) {
        if (!takeLock(stem) && errno != EWOULDBLOCK) {
            const int error = folderError == 0 ? errno : folderError;
            m_faults += QStringLiteral(" (%1.lock: %2)").arg(stem, qt_error_string(error));
            return std::nullopt;
        }
        // One that still answers is the first, even if its lock file was cleaned up as old.
        if (askFirst()) {
            m_lock.reset();
            return StartAnswer{StartAnswer::Outcome::AnotherWoken, {}};
        }
        if (m_lock) {
            listen();
            return StartAnswer{};
        }
        std::this_thread::sleep_for(pause);
    }
    return givenUp(
        QStringLiteral("%1.lock is locked by a process that does not answer (fuser names it)").arg(stem));
}

bool InstanceFiles::askFirst() const
{
    const int error = withAddress(::connect, newSocket(), m_socketPath);
    return error == 0 || error == EAGAIN; // so many processes connect that they queue
}

void InstanceFiles::holdIfFree()
{
    if (!m_stems.empty() && takeLock(m_stems.front()))
        listen();
}

/// Without waiting; errno says why it failed.
bool InstanceFiles::takeLock(const QString& stem)
{
    const QByteArray path = pathBytes(stem);
    m_socketPath = path + ".socket";
    m_lock = FileLock::take(path + ".lock", std::chrono::milliseconds(0));
    return m_lock.has_value();
}

void InstanceFiles::listen()
{
    if (const int error = openSocket())
        qCWarning(instanceLog, "cannot listen for further starts on %s: %s", m_socketPath.constData(),
                  std::strerror(error));
}

int InstanceFiles::openSocket()
{
    // Left by a killed process; by the lock, nobody listens on it.
    if (::unlink(m_socketPath.constData()) != 0 && errno == EISDIR)
        ::rmdir(m_socketPath.constData());
    FileDescriptor socket = newSocket();
    if (const int error = withAddress(::bind, socket, m_socketPath))
        return error;
    if (::listen(socket.get(), SOMAXCONN) != 0)
        return errno;
    m_socket = std::move(socket);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { acceptRequest(); });
    return 0;
}

void InstanceFiles::acceptRequest()
{
    const FileDescriptor connection(::accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (connection.isOpen() && isFromSameUser(connection) && m_showRequested)
        m_showRequested();
}

} // namespace quindle
