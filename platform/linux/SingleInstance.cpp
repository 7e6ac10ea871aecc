#include "platform/linux/SingleInstance.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>

#include <QCryptographicHash>
#include <QFile>
#include <QLoggingCategory>
#include <QSocketNotifier>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(instanceLog, "quindle.instance")

bool isOwnFolder(const QByteArray& path)
{
    struct stat found = {};
    return ::lstat(path.constData(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::geteuid();
}

// Anybody may make that name in /tmp first, so it counts only when it is the user's and closed to others.
bool isClosedToOthers(const QByteArray& path)
{
    struct stat found = {};
    return isOwnFolder(path) && ::lstat(path.constData(), &found) == 0 && (found.st_mode & 0077) == 0;
}

// Nothing when the path is too long for an address.
std::optional<sockaddr_un> addressOf(const QByteArray& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

template <typename Call>
bool withAddress(Call call, const FileDescriptor& socket, const QByteArray& path)
{
    const auto address = addressOf(path);
    return address &&
           call(socket.get(), reinterpret_cast<const sockaddr*>(&*address), socklen_t{sizeof *address}) == 0;
}

FileDescriptor newSocket()
{
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

bool connects(const QByteArray& path)
{
    return withAddress(::connect, newSocket(), path);
}

bool isFromSameUser(const FileDescriptor& connection)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(connection.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

QString fitForFileName(const QString& text)
{
    constexpr qsizetype longest = 40;
    QString name;
    for (const QChar character : text) {
        const bool plain = character.unicode() < 0x80 && character.isLetterOrNumber();
        name += plain || character == u'-' ? character : QChar(u'_');
    }
    if (name.size() <= longest)
        return name;
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

} // namespace

QString instanceFolder()
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (runtime.startsWith('/') && isOwnFolder(runtime))
        return QFile::decodeName(runtime);
    const QByteArray folder = "/tmp/quindle-" + QByteArray::number(::geteuid());
    ::mkdir(folder.constData(), 0700);
    return isClosedToOthers(folder) ? QFile::decodeName(folder) : QString();
}

QString instanceName()
{
    for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"})
        if (const QByteArray display = qgetenv(variable); !display.isEmpty())
            return fitForFileName(QFile::decodeName(display));
    return QStringLiteral("none");
}

SingleInstance::SingleInstance(const QString& folder, const QString& name)
{
    if (folder.isEmpty())
        return;
    const QByteArray stem = QFile::encodeName(folder + QStringLiteral("/quindle-helper-") + name);
    m_lockPath = stem + ".lock";
    m_socketPath = stem + ".socket";
}

SingleInstance::~SingleInstance()
{
    if (m_socket.isOpen())
        ::unlink(m_socketPath.constData());
}

bool SingleInstance::acquire()
{
    if (m_lockPath.isEmpty())
        return true;
    auto lock = FileLock::take(m_lockPath, std::chrono::milliseconds(0));
    if (!lock && errno == EWOULDBLOCK)
        return false;
    // One that still answers, although its lock file was swept away as old, is the first all the same.
    if (connects(m_socketPath))
        return false;
    if (!listen())
        qCWarning(instanceLog, "cannot listen for further starts on %s: %s", m_socketPath.constData(),
                  std::strerror(errno));
    m_lock = std::move(lock);
    return true;
}

bool SingleInstance::listen()
{
    ::unlink(m_socketPath.constData());
    FileDescriptor socket = newSocket();
    if (!withAddress(::bind, socket, m_socketPath) || ::listen(socket.get(), SOMAXCONN) != 0)
        return false;
    m_socket = std::move(socket);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { acceptRequest(); });
    return true;
}

void SingleInstance::acceptRequest()
{
    const FileDescriptor connection(::accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (connection.isOpen() && isFromSameUser(connection) && m_showRequested)
        m_showRequested();
}

bool SingleInstance::askFirstToShow() const
{
    constexpr int mostTries = 100;
    for (int tries = 0; tries < mostTries; ++tries) {
        if (connects(m_socketPath))
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

} // namespace quindle
