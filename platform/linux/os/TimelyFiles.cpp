#include "platform/linux/os/TimelyFiles.h"

#include <QLoggingCategory>

#include "platform/linux/os/DetachedThread.h"
#include "platform/linux/os/SmallFile.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(fileLog, "quindle.files")

} // namespace

struct TimelyFiles::Reading
{
    std::optional<QByteArray> content;
    EndOfWork end;
};

TimelyFiles::TimelyFiles(std::chrono::milliseconds patience, Read read)
    : m_patience(patience)
    , m_read(read ? std::move(read) : Read(readSmallFile))
{
}

TimelyFiles::~TimelyFiles() = default;

std::optional<QByteArray> TimelyFiles::read(const QString& path)
{
    const bool isNew = !m_underWay.contains(path);
    // Without room for a thread nothing is read here: this one must never hang.
    if (isNew && !begin(path))
        return m_last[path];
    const std::shared_ptr<Reading> reading = m_underWay[path];
    // Waited for once: further calls while it hangs get what was read last.
    if (reading->end.isReached(isNew ? m_patience : std::chrono::milliseconds(0))) {
        m_last[path] = reading->content;
        m_underWay.erase(path);
    } else if (isNew) {
        // Logged once for each wait, not for each call during it.
        qCWarning(fileLog).noquote() << path << "does not answer";
    }
    return m_last[path];
}

bool TimelyFiles::begin(const QString& path)
{
    const auto reading = std::make_shared<Reading>();
    const auto work = [reading, path, read = m_read] {
        reading->content = read(path);
        reading->end.reach();
    };
    if (!startThread(work))
        return false;
    m_underWay[path] = reading;
    return true;
}

} // namespace quindle
