#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "plist/PropertyList.h"
#include "tests/support/QtPrinters.h"

namespace quindle {

/// A folder for settings files, and what is logged meanwhile.
class TemporarySettings : public testing::Test
{
protected:
    TemporarySettings()
    {
        messages().clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { messages().append(text); });
    }
    ~TemporarySettings() override { qInstallMessageHandler(m_former); }

    static QStringList& messages()
    {
        static QStringList list;
        return list;
    }

    QString folder() const { return m_root.path() + QStringLiteral("/quindle"); }
    QString path() const { return folder() + QStringLiteral("/group.plist"); }

    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    // In place, as an editor may do it.
    static void writeBytes(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(path.left(path.lastIndexOf(u'/')));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }

    static QByteArray listOf(const QString& key, const QVariant& value)
    {
        return xmlPropertyList(QVariantMap{{key, value}});
    }

    // What is in the folder, the lock files left out.
    QStringList files() const
    {
        QStringList names =
            QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        return names.filter(QRegularExpression(QStringLiteral("(?<!\\.lock)$")));
    }

    QTemporaryDir m_root{rootTemplate()};

private:
    // In memory where possible: thousands of writes need not wait for a disk.
    static QString rootTemplate()
    {
        const QString memory = QStringLiteral("/dev/shm");
        const bool usable = QFileInfo(memory).isWritable();
        return (usable ? memory : QDir::tempPath()) + QStringLiteral("/quindle-settings-XXXXXX");
    }

    QtMessageHandler m_former = nullptr;
};

} // namespace quindle
