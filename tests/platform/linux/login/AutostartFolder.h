#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/FileUrl.h"
#include "platform/linux/login/LinuxLoginItems.h"

namespace quindle {

/// A user's configuration folder, an installed helper and a folder of programs.
class AutostartFolder
{
public:
    AutostartFolder()
    {
        for (const QString& program : {this->program(), path(QStringLiteral("bin/other"))})
            addProgram(program);
        QDir().mkpath(entries());
    }

    QString path(const QString& name) const
    {
        return QFileInfo(m_root.path()).canonicalFilePath() + u'/' + name;
    }
    QString configuration() const { return path(QStringLiteral("config")); }
    QString entries() const { return configuration() + QStringLiteral("/autostart"); }
    QString bundle() const { return path(QStringLiteral("lib/Quindle Helper/Quindle-Helper.app")); }
    QString program() const { return bundle() + QStringLiteral("/Contents/Linux/quindle-helper"); }
    QString bundleUrl() const { return fileUrl(bundle() + u'/'); }

    LoginItemPlaces places() const
    {
        return {.entries = entries(),
                .lock = configuration() + QStringLiteral("/quindle/autostart.lock"),
                .link = configuration() + QStringLiteral("/quindle/quindle-helper"),
                .bundle = bundle(),
                .programFolders = {path(QStringLiteral("bin"))},
                .home = path(QStringLiteral("home"))};
    }

    static void addProgram(const QString& path)
    {
        write(path, "#!/bin/sh\n");
        QFile::setPermissions(path,
                              QFile::permissions(path) | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }

    void addEntry(const char* name, const QByteArray& lines) const
    {
        write(entries() + u'/' + QLatin1String(name),
              "[Desktop Entry]\nType=Application\nName=x\n" + lines + '\n');
    }

    QByteArray entry(const char* name) const
    {
        QFile file(entries() + u'/' + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList entryNames() const
    {
        return QDir(entries()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_root;
};

} // namespace quindle
