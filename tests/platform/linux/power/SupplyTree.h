#pragma once

#include <map>
#include <string>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quindle {

/// A class directory in a temporary folder.
class SupplyTree
{
public:
    using Texts = std::map<std::string, std::string>;

    std::string path() const { return m_folder.path().toStdString(); }

    QString pathOf(const std::string& supply, const std::string& attribute = {}) const
    {
        return m_folder.filePath(QString::fromStdString(supply + '/' + attribute));
    }

    void add(const std::string& supply, const Texts& attributes) const
    {
        ASSERT_TRUE(QDir().mkpath(pathOf(supply)));
        for (const auto& [attribute, text] : attributes)
            write(supply, attribute, text + '\n');
    }

    /// Writes in place, as the kernel's values change: the file stays the same one.
    void write(const std::string& supply, const std::string& attribute, const std::string& text) const
    {
        QFile file(pathOf(supply, attribute));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text.data(), static_cast<qint64>(text.size())),
                  static_cast<qint64>(text.size()));
    }

    void remove(const std::string& supply) const { ASSERT_TRUE(QDir(pathOf(supply)).removeRecursively()); }

private:
    /// In memory where possible: thousands of small files take a disk many seconds.
    static QString pathTemplate()
    {
        const QFileInfo memory(QStringLiteral("/dev/shm"));
        return (memory.isWritable() ? memory.filePath() : QDir::tempPath()) +
               QStringLiteral("/supplies-XXXXXX");
    }

    QTemporaryDir m_folder{pathTemplate()};
};

} // namespace quindle
