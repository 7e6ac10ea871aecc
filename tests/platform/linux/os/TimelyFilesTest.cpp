// Firmware's texts were read on the main thread: one that hung held up the start without end.

#include <atomic>
#include <mutex>
#include <thread>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/os/SmallFile.h"
#include "platform/linux/os/TimelyFiles.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

struct TimelyFilesTest : testing::Test
{
    /// On the threads that read.
    struct Disk
    {
        std::optional<QByteArray> read(const QString& name)
        {
            ++reads;
            const std::scoped_lock hangs(gate);
            return readSmallFile(name);
        }

        std::mutex gate;
        std::atomic<int> reads = 0;
    };

    void write(const QByteArray& text) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    bool comesToSay(const std::optional<QByteArray>& text)
    {
        for (int tries = 0; tries < 3000; ++tries) {
            if (files.read(path) == text)
                return true;
            std::this_thread::sleep_for(10ms);
        }
        return false;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("product_name"));
    std::shared_ptr<Disk> disk = std::make_shared<Disk>();
    TimelyFiles files{100ms, [disk = disk](const QString& each) { return disk->read(each); }};
};

TEST_F(TimelyFilesTest, AFileIsReadAnewEachTime)
{
    EXPECT_EQ(files.read(path), std::nullopt);
    write("one");
    EXPECT_TRUE(comesToSay("one"));
    write("two");
    EXPECT_TRUE(comesToSay("two"));
    QFile::remove(path);
    EXPECT_TRUE(comesToSay(std::nullopt));
}

TEST_F(TimelyFilesTest, OneThatHangsIsWaitedForOnce)
{
    write("one");
    const std::unique_lock hangs(disk->gate);
    const auto begun = std::chrono::steady_clock::now();
    for (int tries = 0; tries < 1000; ++tries)
        EXPECT_EQ(files.read(path), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 20s); // a tenth of a second each time takes longer
    EXPECT_TRUE(comesTrue([this] { return disk->reads > 0; }));
    EXPECT_EQ(disk->reads, 1);
}

TEST_F(TimelyFilesTest, WhatItHeldStandsInUntilItAnswers)
{
    write("one");
    ASSERT_TRUE(comesToSay("one"));
    {
        const std::scoped_lock hangs(disk->gate);
        write("two");
        EXPECT_EQ(files.read(path), "one");
        EXPECT_EQ(files.read(path), "one");
    }
    EXPECT_TRUE(comesToSay("two"));
}

} // namespace
