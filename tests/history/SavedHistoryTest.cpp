#include "history/SavedHistory.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

class SavedHistory : public testing::Test
{
protected:
    SavedHistory()
    {
        lines().clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { lines().append(text); });
    }
    ~SavedHistory() override { qInstallMessageHandler(m_former); }

    static QStringList& lines()
    {
        static QStringList list;
        return list;
    }

    QString path() const { return savedHistoryFile(m_folder.path()); }

    QTemporaryDir m_folder;

private:
    QtMessageHandler m_former = nullptr;
};

TEST_F(SavedHistory, NoFileIsNoFault)
{
    EXPECT_EQ(savedRecords(path()), QVariantList());
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(SavedHistory, RecordsAreRead)
{
    QFile::copy(testDataFolder() + QStringLiteral("/archives/two-records.binary"), path());
    EXPECT_TRUE(path().endsWith(QStringLiteral("/QuindleData.qndarchive")));
    EXPECT_EQ(savedRecords(path()).size(), 2);
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(SavedHistory, DamageIsLoggedInOneLine)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("bplist00");
    file.close();
    EXPECT_EQ(savedRecords(path()), QVariantList());
    ASSERT_EQ(lines().size(), 1);
    EXPECT_TRUE(lines().at(0).startsWith(path()) && !lines().at(0).contains(u'\n'));
}

TEST_F(SavedHistory, PipeIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(savedRecords(path()), QVariantList());
    EXPECT_EQ(lines().size(), 1);
}

} // namespace
