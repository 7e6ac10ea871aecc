#include <chrono>
#include <optional>
#include <sys/stat.h>
#include <thread>

#include <QRegularExpression>

#include "platform/linux/settings/LinuxUserDefaults.h"
#include "tests/platform/linux/settings/TemporarySettings.h"
#include "tests/support/FullDisk.h"

using namespace quindle;

namespace {

class LinuxUserDefaultsFaultsTest : public TemporarySettings
{
protected:
    /// What is read while an editor writes; nothing when it took longer than an editor is waited for.
    std::optional<qint64> readDuringAnEdit()
    {
        using Clock = std::chrono::steady_clock;
        QDir(folder()).removeRecursively();
        messages().clear();
        const auto begun = Clock::now();
        Clock::time_point finished;
        writeBytes(path(), "");
        const LinuxUserDefaults defaults(path());
        std::thread editor([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            writeBytes(path(), listOf(key, 7));
            finished = Clock::now();
        });
        const qint64 value = defaults.integer(key);
        editor.join();
        return finished - begun < std::chrono::milliseconds(40) ? std::optional(value) : std::nullopt;
    }

    const QString key = QStringLiteral("key");
};

TEST_F(LinuxUserDefaultsFaultsTest, DamagedFilesAreSetAside)
{
    const QByteArray good = listOf(key, 1);
    const QByteArray damages[] = {
        "",
        "nonsense",
        "bplist00",
        "<plist><array/></plist>",
        "<plist><string>x</string></plist>",
        good.left(good.size() / 2),
        QByteArray(100, '\0'),
    };
    for (const QByteArray& damage : damages) {
        QDir(folder()).removeRecursively();
        messages().clear();
        writeBytes(path(), damage);
        LinuxUserDefaults defaults(path());
        EXPECT_TRUE(defaults.dictionaryRepresentation().isEmpty()) << damage.toStdString();
        EXPECT_FALSE(defaults.object(key).isValid());
        const QStringList left = files();
        ASSERT_EQ(left.size(), 1) << damage.toStdString();
        const QRegularExpression name(QStringLiteral("^group\\.plist\\.damaged-\\d{8}-\\d{6}(-\\d+)?$"));
        EXPECT_TRUE(name.match(left.first()).hasMatch()) << left.first().toStdString();
        EXPECT_EQ(bytesOf(folder() + u'/' + left.first()), damage);
        ASSERT_EQ(messages().size(), 1);
        EXPECT_TRUE(messages().first().contains(path()));
        defaults.setInteger(key, 5);
        EXPECT_EQ(defaults.integer(key), 5);
    }
}

TEST_F(LinuxUserDefaultsFaultsTest, OneSetAsideIsNeverReplaced)
{
    LinuxUserDefaults defaults(path());
    QSet<QByteArray> expected;
    for (int round = 0; round < 5; ++round) {
        const QByteArray damage = "damage " + QByteArray::number(round);
        expected.insert(damage);
        writeBytes(path(), damage);
        defaults.setInteger(key, round);
        EXPECT_EQ(defaults.integer(key), round);
    }
    QSet<QByteArray> found;
    for (const QString& name : files().filter(QStringLiteral("damaged")))
        found.insert(bytesOf(folder() + u'/' + name));
    EXPECT_EQ(found, expected);
}

// An editor empties the file first; what it writes a moment later must not land in the file set aside.
TEST_F(LinuxUserDefaultsFaultsTest, WaitsForAnEditorToFinish)
{
    std::optional<qint64> value;
    for (int attempt = 0; attempt < 200 && !value; ++attempt) // a busy machine may hold the editor up
        value = readDuringAnEdit();
    EXPECT_EQ(value, 7);
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    EXPECT_TRUE(messages().isEmpty());
}

// The kernel's own file is empty by its size, and nobody may write beside it.
TEST_F(LinuxUserDefaultsFaultsTest, DamagedWhereNothingCanBeWrittenIsLeftAlone)
{
    LinuxUserDefaults defaults(QStringLiteral("/proc/version"));
    for (int round = 0; round < 3; ++round)
        EXPECT_FALSE(defaults.object(key).isValid());
    EXPECT_EQ(messages().size(), 1);
    defaults.setInteger(key, 1);
    defaults.setInteger(key, 1);
    EXPECT_EQ(messages().size(), 2);
    EXPECT_FALSE(bytesOf(QStringLiteral("/proc/version")).isEmpty());
}

TEST_F(LinuxUserDefaultsFaultsTest, AFileInPlaceOfTheFolder)
{
    writeBytes(folder(), "x");
    LinuxUserDefaults defaults(path());
    EXPECT_FALSE(defaults.object(key).isValid());
    EXPECT_TRUE(messages().isEmpty());
    defaults.setInteger(key, 1);
    defaults.setInteger(key, 2);
    EXPECT_EQ(messages().size(), 1);
    EXPECT_EQ(bytesOf(folder()), "x");
}

TEST_F(LinuxUserDefaultsFaultsTest, WhatIsNoReadableFileIsReadAsNothingAndKept)
{
    const std::function<void()> obstacles[] = {
        [this] { QDir().mkpath(path()); },
        [this] { ::mkfifo(QFile::encodeName(path()).constData(), 0600); },
        [this] { QFile::link(path(), path()); },
        [this] {
            writeBytes(path(), listOf(key, 1));
            EXPECT_EQ(::truncate(QFile::encodeName(path()).constData(), 16 * 1024 * 1024 + 1), 0);
        },
    };
    for (const auto& obstacle : obstacles) {
        QDir(folder()).removeRecursively();
        QDir().mkpath(folder());
        messages().clear();
        obstacle();
        LinuxUserDefaults defaults(path());
        EXPECT_FALSE(defaults.object(key).isValid());
        EXPECT_FALSE(defaults.object(key).isValid());
        EXPECT_EQ(messages().size(), 1);
        defaults.setInteger(key, 1);
        defaults.setInteger(key, 1);
        EXPECT_EQ(messages().size(), 2);
        EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    }
}

// Default values instead of the user's settings would change title and icon while a network home is away.
TEST_F(LinuxUserDefaultsFaultsTest, WhatCannotBeReadAnyMoreIsWhatItWas)
{
    writeBytes(path(), listOf(key, 1));
    LinuxUserDefaults defaults(path());
    EXPECT_EQ(defaults.integer(key), 1);
    QFile::remove(path());
    QDir().mkpath(path()); // as unreadable as a file of a server that is away, also for root
    for (int time = 0; time < 3; ++time)
        EXPECT_EQ(defaults.integer(key), 1);
    EXPECT_EQ(messages().size(), 1);
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 1);
    QDir().rmdir(path());
    EXPECT_FALSE(defaults.object(key).isValid());
    writeBytes(path(), listOf(key, 3));
    EXPECT_EQ(defaults.integer(key), 3);
}

TEST_F(LinuxUserDefaultsFaultsTest, FullDiskChangesNothing)
{
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    const QByteArray before = bytesOf(path());

    {
        const FullDisk disk(64);
        defaults.setInteger(key, 2);
        defaults.setInteger(key, 3);
    }

    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(defaults.integer(key), 1);
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    EXPECT_EQ(messages().size(), 1);
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
}

} // namespace
