#pragma once

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <limits>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "records/SampleStore.h"
#include "records/SnapshotArchive.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

/// The end of a range that has none.
inline constexpr qint64 always = std::numeric_limits<qint64>::max();

/// A folder for a history that does not exist yet.
class TemporaryHistory : public testing::Test
{
protected:
    QString folder() const { return m_root.filePath(QStringLiteral("quindle")); }
    QString database() const { return folder() + QStringLiteral("/history.sqlite"); }
    QString archive() const { return folder() + QStringLiteral("/QuindleData.qndarchive"); }

    /// The names in it, without those of locks.
    QStringList files() const
    {
        QStringList names = QDir(folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        names.removeIf([](const QString& name) { return name.endsWith(u".lock"); });
        return names;
    }

    static mode_t modeOf(const QString& path)
    {
        struct stat found = {};
        return ::stat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 0777 : 0;
    }

    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_root;
};

/// Runs `work` in a process of its own.
inline pid_t forked(const std::function<void()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    return child;
}

/// 0 when the child has ended well.
inline int statusOf(pid_t child)
{
    int status = -1;
    ::waitpid(child, &status, 0);
    return status;
}

inline Sample sampleAt(qint64 moment, double charge = 50)
{
    return {.moment = moment, .charge = charge, .power = -8.5, .state = SampleState::Discharging};
}

inline QVariantMap recordAt(qint64 moment, qint64 fullCharge = 4000,
                            const QString& battery = QStringLiteral("battery"))
{
    return {{QStringLiteral("Data.SnapshotDate"), QDateTime::fromSecsSinceEpoch(moment)},
            {QStringLiteral("Battery.BatteryID"), battery},
            {QStringLiteral("Battery.FullChargeCapacity"), fullCharge}};
}

} // namespace quindle
