#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>

namespace quindle {

/// Reads small files that hardly ever change (firmware's texts, a computer's name) but may hang: each on a
/// thread of its own, with a bounded wait. Main thread only.
class TimelyFiles
{
public:
    using Read = std::function<std::optional<QByteArray>(const QString& path)>;

    /// `patience` is how long a file is waited for. `read` reads it; readSmallFile where that is empty.
    explicit TimelyFiles(std::chrono::milliseconds patience = std::chrono::milliseconds(200), Read read = {});
    ~TimelyFiles();

    TimelyFiles(const TimelyFiles&) = delete;
    TimelyFiles& operator=(const TimelyFiles&) = delete;

    /// What the file holds, nothing where it cannot be read (see readSmallFile). A file that does not answer
    /// in time is named in the log, and its last contents stand in, without waiting, until it answers.
    std::optional<QByteArray> read(const QString& path);

private:
    struct Reading;

    bool begin(const QString& path);

    std::chrono::milliseconds m_patience;
    Read m_read;
    std::map<QString, std::shared_ptr<Reading>> m_underWay;
    std::map<QString, std::optional<QByteArray>> m_last;
};

} // namespace quindle
