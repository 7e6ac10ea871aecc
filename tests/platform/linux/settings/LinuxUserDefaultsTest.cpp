#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>

#include <QRegularExpression>

#include "platform/linux/os/UserFolders.h"
#include "platform/linux/settings/LinuxUserDefaults.h"
#include "tests/platform/UserDefaultsContract.h"
#include "tests/platform/linux/settings/TemporarySettings.h"
#include "tests/support/BinaryPropertyList.h"

using namespace quindle;

namespace quindle {

struct LinuxDatabases
{
    UserDefaultsDatabases& databases() { return m_databases; }

private:
    QTemporaryDir m_root;
    LinuxUserDefaultsDatabases m_databases{m_root.path() + QStringLiteral("/a/quindle")};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, UserDefaultsContract, LinuxDatabases);

} // namespace quindle

namespace {

const QString key = QStringLiteral("key");

class LinuxUserDefaultsTest : public TemporarySettings
{
protected:
    unsigned modeOf(const QString& name) const
    {
        struct stat found = {};
        EXPECT_EQ(::stat(QFile::encodeName(name).constData(), &found), 0);
        return found.st_mode & 07777;
    }

    ino_t inode() const
    {
        struct stat found = {};
        EXPECT_EQ(::stat(QFile::encodeName(path()).constData(), &found), 0);
        return found.st_ino;
    }
};

TEST_F(LinuxUserDefaultsTest, FolderFollowsTheConfigurationHome)
{
    struct Row
    {
        const char* configuration;
        const char* home;
        const char* expected;
    };
    const Row rows[] = {
        {"/x/conf", "/home/u", "/x/conf/quindle"},
        {"", "/home/u", "/home/u/.config/quindle"},
        {"relative", "/home/u", "/home/u/.config/quindle"},
        {"~/conf", "/home/u", "/home/u/.config/quindle"},
        {"", "relative", ""},
    };
    const QByteArray oldConfiguration = qgetenv("XDG_CONFIG_HOME");
    const QByteArray oldHome = qgetenv("HOME");
    for (const Row& row : rows) {
        qputenv("XDG_CONFIG_HOME", row.configuration);
        qputenv("HOME", row.home);
        EXPECT_EQ(settingsFolder(), QString::fromLatin1(row.expected));
    }
    qputenv("XDG_CONFIG_HOME", oldConfiguration);
    qputenv("HOME", oldHome);
}

TEST_F(LinuxUserDefaultsTest, FilesAreNamedAfterTheDomains)
{
    LinuxUserDefaultsDatabases databases(folder());
    databases.standard().setInteger(key, 1);
    databases.suite(QStringLiteral("group.fernhollow.Quindle"))->setInteger(key, 2);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("com.fernhollow.Quindle-Helper.plist"),
                                    QStringLiteral("group.fernhollow.Quindle.plist")}));
    EXPECT_EQ(databases.suite(QStringLiteral("../x")), nullptr);
    EXPECT_EQ(databases.suite(QString()), nullptr);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxUserDefaultsTest, WithoutAFolderNothingIsStored)
{
    LinuxUserDefaultsDatabases databases{QString()};
    EXPECT_EQ(databases.suite(QStringLiteral("group.fernhollow.Quindle")), nullptr);
    databases.standard().setInteger(key, 1);
    databases.standard().setInteger(key, 2);
    EXPECT_FALSE(databases.standard().object(key).isValid());
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(LinuxUserDefaultsTest, ReadingMakesNoFile)
{
    const LinuxUserDefaults defaults(path());
    EXPECT_FALSE(defaults.object(key).isValid());
    EXPECT_FALSE(QDir(folder()).exists());
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(LinuxUserDefaultsTest, FileAndFolderAreTheUsersAlone)
{
    const mode_t former = ::umask(0);
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    ::umask(former);
    EXPECT_EQ(modeOf(folder()), 0700u);
    EXPECT_EQ(modeOf(path()), 0600u);
    EXPECT_EQ(modeOf(path() + QStringLiteral(".lock")), 0600u);
    EXPECT_TRUE(bytesOf(path()).startsWith("<?xml"));
}

// An access control list that everything in a folder inherits gives another account all rights. Those of a
// file's group are the most that it can give, and they are none.
TEST_F(LinuxUserDefaultsTest, AnInheritedAccessListOpensNothing)
{
    struct Entry
    {
        quint16 kind;
        quint16 rights;
        quint32 account;
    };
    struct
    {
        quint32 version = 2;
        Entry entries[5] = {{1, 7, ~0u}, {2, 7, 65534}, {4, 0, ~0u}, {16, 7, ~0u}, {32, 0, ~0u}};
    } const list;
    const QByteArray root = QFile::encodeName(m_root.path());
    ASSERT_EQ(::setxattr(root.constData(), "system.posix_acl_default", &list, sizeof list, 0), 0);
    const mode_t former = ::umask(0);
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    defaults.setInteger(key, 2);
    ::umask(former);
    const QByteArray file = QFile::encodeName(path());
    EXPECT_GT(::getxattr(file.constData(), "system.posix_acl_access", nullptr, 0), 0); // it was inherited
    EXPECT_EQ(modeOf(folder()), 0700u);
    EXPECT_EQ(modeOf(path()), 0600u);
    EXPECT_EQ(modeOf(path() + QStringLiteral(".lock")), 0600u);
}

TEST_F(LinuxUserDefaultsTest, ReadsBinaryAndKeepsTheRestOfTheFile)
{
    writeBytes(path(), binaryPropertyList({QByteArray("\xd1\1\2"), "\x55other", "\x10\x0c"}));
    LinuxUserDefaults defaults(path());
    EXPECT_EQ(defaults.integer(QStringLiteral("other")), 12);
    defaults.setObject(key, QStringLiteral("x"));
    EXPECT_EQ(defaults.dictionaryRepresentation(),
              (QVariantMap{{key, QStringLiteral("x")}, {QStringLiteral("other"), qint64(12)}}));
}

TEST_F(LinuxUserDefaultsTest, SameTypeAndValueWritesNothing)
{
    LinuxUserDefaults defaults(path());
    const QVariant values[] = {
        true,          qint64(1),          1.0,
        QString(u'1'), QVariantList{1, 2}, QDateTime::fromMSecsSinceEpoch(1'700'000'000'000),
    };
    for (const QVariant& value : values) {
        const QByteArray before = QFile::exists(path()) ? bytesOf(path()) : QByteArray();
        defaults.setObject(key, value);
        EXPECT_NE(bytesOf(path()), before) << value.typeName();
        const ino_t written = inode();
        // Holds the inode, so that a replacement cannot be given the same one.
        QFile held(path());
        ASSERT_TRUE(held.open(QIODevice::ReadOnly));
        defaults.setObject(key, value);
        EXPECT_EQ(inode(), written) << value.typeName();
    }
}

TEST_F(LinuxUserDefaultsTest, ValuesOfNoPropertyListTypeAreNotStored)
{
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    defaults.setObject(key, QVariant());
    defaults.setObject(key, QVariant());
    EXPECT_EQ(defaults.integer(key), 1);
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(LinuxUserDefaultsTest, SeesAnotherWriterAtTheNextRead)
{
    const LinuxUserDefaults reader(path());
    LinuxUserDefaults writer(path());
    for (int value = 1; value < 20; ++value) {
        writer.setInteger(key, value);
        EXPECT_EQ(reader.integer(key), value);
    }
    QFile::remove(path());
    EXPECT_FALSE(reader.object(key).isValid());
}

// Same file, same size, same times as far as a program can set them.
TEST_F(LinuxUserDefaultsTest, SeesAnEditInPlaceAtTheNextRead)
{
    const LinuxUserDefaults reader(path());
    const timespec times[] = {{1'700'000'000, 0}, {1'700'000'000, 0}};
    for (int round = 0; round < 300; ++round) {
        writeBytes(path(), listOf(key, QString(QChar(u'a' + round % 26))));
        ::utimensat(AT_FDCWD, QFile::encodeName(path()).constData(), times, 0);
        ASSERT_EQ(reader.object(key), QVariant(QString(QChar(u'a' + round % 26)))) << round;
    }
}

TEST_F(LinuxUserDefaultsTest, ParsesAnUnchangedFileOnce)
{
    writeBytes(path(), listOf(key, QStringLiteral("text")));
    std::this_thread::sleep_for(std::chrono::milliseconds(80));
    PropertyListFile file(QFile::encodeName(path()));
    EXPECT_EQ(file.refresh(), PropertyListFile::State::Good);
    const QVariantMap kept = file.contents();
    EXPECT_EQ(file.refresh(), PropertyListFile::State::Good);
    EXPECT_EQ(file.contents().constBegin().key().constData(), kept.constBegin().key().constData());
}

TEST_F(LinuxUserDefaultsTest, ALinkStaysALink)
{
    const QString target = m_root.path() + QStringLiteral("/dotfiles/q.plist");
    QDir().mkpath(folder());
    QDir().mkpath(m_root.path() + QStringLiteral("/dotfiles"));
    // Relative, and its target is not there yet.
    ASSERT_EQ(::symlink("../dotfiles/q.plist", QFile::encodeName(path()).constData()), 0);
    LinuxUserDefaults defaults(path());
    defaults.setInteger(key, 1);
    EXPECT_EQ(bytesOf(target), bytesOf(path()));
    writeBytes(target, "damaged");
    EXPECT_FALSE(defaults.object(key).isValid());
    defaults.setInteger(key, 2);
    EXPECT_EQ(propertyListFromFile(target)->toMap().value(key), QVariant(qint64(2)));
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(files(), QStringList{QStringLiteral("group.plist")});
    EXPECT_EQ(QDir(m_root.path() + QStringLiteral("/dotfiles")).entryList(QDir::Files | QDir::Hidden).size(),
              2);
}

TEST_F(LinuxUserDefaultsTest, LeftoversOfTheKilledAreRemovedByTheNextWriter)
{
    LinuxUserDefaults defaults(path());
    const QString leftover = folder() + QStringLiteral("/.group.plist.new-a1B2c3");
    const QString foreign = folder() + QStringLiteral("/.other.plist.new-a1B2c3");
    writeBytes(leftover, "half");
    writeBytes(foreign, "half");
    EXPECT_FALSE(defaults.object(key).isValid());
    EXPECT_TRUE(QFile::exists(leftover));
    defaults.setInteger(key, 1);
    EXPECT_FALSE(QFile::exists(leftover));
    EXPECT_TRUE(QFile::exists(foreign));
}

} // namespace
