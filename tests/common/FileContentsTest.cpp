#include "common/FileContents.h"

#include <cerrno>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "common/Paths.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

class FileContentsTest : public testing::Test
{
protected:
    QString write(const QByteArray& name, const QByteArray& bytes) const
    {
        const QByteArray path = QFile::encodeName(m_folder.path()) + '/' + name;
        std::FILE* file = std::fopen(path.constData(), "w");
        EXPECT_NE(file, nullptr);
        std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
        std::fclose(file);
        return pathText(path);
    }

    QTemporaryDir m_folder;
};

TEST_F(FileContentsTest, AnOrdinaryFileIsReadWhole)
{
    const QByteArray bytes("a\0b", 3);
    EXPECT_EQ(fileContents(write("file", bytes), 3).bytes, bytes);
    EXPECT_EQ(fileContents(write("odd\xff", bytes), 3).bytes, bytes);
    const FileContents empty = fileContents(write("empty", {}), 3);
    EXPECT_EQ(empty.error, 0);
    EXPECT_TRUE(empty.bytes.isEmpty());
}

TEST_F(FileContentsTest, OneThatIsTooLargeIsNotRead)
{
    const FileContents contents = fileContents(write("file", "four"), 3);
    EXPECT_EQ(contents.error, EFBIG);
    EXPECT_TRUE(contents.bytes.isEmpty());
}

TEST_F(FileContentsTest, WhatIsNoOrdinaryFileIsRefusedAtOnce)
{
    const QString pipe = m_folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path :
         {pipe, m_folder.path(), QStringLiteral("/dev/zero"), QStringLiteral("/dev/tty")})
        EXPECT_EQ(fileContents(path, 3).error, EINVAL) << path.toStdString();
}

TEST_F(FileContentsTest, OneThatIsNotThereSaysSo)
{
    EXPECT_EQ(fileContents(m_folder.filePath(QStringLiteral("none")), 3).error, ENOENT);
    EXPECT_EQ(fileContents(QString(), 3).error, ENOENT);
    EXPECT_EQ(fileContents(write("file", "x") + QChar(0), 3).error, ENOENT);
    EXPECT_EQ(fileContents(write("file", "x") + QStringLiteral("/x"), 3).error, ENOTDIR);
}

} // namespace
