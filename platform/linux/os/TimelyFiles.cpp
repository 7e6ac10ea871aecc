#include "platform/linux/os/TimelyFiles.h"

#include <condition_variable>
#include <mutex>

#include <QLoggingCategory>

#include "platform/linux/os/DetachedThread.h"
#include "platform/linux/os/SmallFile.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(fileLog, "quindle.files")

} // namespace

struct TimelyFiles::Reading
{
    bool isOver(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(mutex);
        return ended.wait_for(lock, patience, [this] { return hasEnded; });
    }

    void end(std::optional<QByteArray> read)
    {
        {
            const std::scoped_lock lock(mutex);
            content = std::move(read);
            hasEnded = true;
        }
        ended.notify_one();
    }

    std::mutex mutex;
    std::condition_variable ended;
    std::optional<QByteArray> content;
    bool hasEnded = false;
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
    if (reading->isOver(isNew ? m_patience : std::chrono::milliseconds(0))) {
        m_last[path] = reading->content;
        m_underWay.erase(path);
        // Logged once for each wait, not for each question in it.
    } else if (isNew) {
        qCWarning(fileLog).noquote() << path << "does not answer";
    }
    return m_last[path];
}

bool TimelyFiles::begin(const QString& path)
{
    const auto reading = std::make_shared<Reading>();
    if (!startThread([reading, path, read = m_read] { reading->end(read(path)); }))
        return false;
    m_underWay[path] = reading;
    return true;
}

} // namespace quindle
