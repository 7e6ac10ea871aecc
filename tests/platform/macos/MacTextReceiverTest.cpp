#include "platform/macos/MacTextReceiver.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/support/ComesTrue.h"
#include "tests/support/Texts.h"

using namespace quindle;

namespace {

class MacTextReceivers : public testing::Test
{
protected:
    QString path() const { return folder.filePath(u("out")); }

    MacTextReceiver shell(const char* script) const
    {
        return {u("/bin/sh"), {u("-c"), u(script), u("sh"), path()}};
    }

    QTemporaryDir folder;
};

TEST_F(MacTextReceivers, TheProgramReadsTheTextAndItsEnd)
{
    for (const QByteArray& text : {QByteArray("one\ntwo\n"), QByteArray(), QByteArray(1'000'000, 'x')}) {
        MacTextReceiver receiver = shell("cat > \"$1.new\"; mv \"$1.new\" \"$1\"");
        EXPECT_TRUE(receiver.isInstalled());
        EXPECT_TRUE(receiver.handOver(text));
        QFile file(path());
        EXPECT_TRUE(comesTrue([&file] { return file.exists(); }));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), text);
        file.remove();
    }
}

TEST_F(MacTextReceivers, WhetherTheLastOneRuns)
{
    MacTextReceiver receiver = shell("while [ ! -e \"$1\" ]; do sleep 0.02; done");
    EXPECT_FALSE(receiver.isRunning());
    EXPECT_TRUE(receiver.handOver("text"));
    EXPECT_TRUE(receiver.isRunning());
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(comesTrue([&receiver] { return !receiver.isRunning(); }));
}

TEST_F(MacTextReceivers, AProgramThatIsNotThere)
{
    MacTextReceiver receiver(folder.filePath(u("none")), {});
    EXPECT_FALSE(receiver.isInstalled());
    EXPECT_FALSE(receiver.handOver("text"));
    EXPECT_FALSE(receiver.isRunning());
}

} // namespace
