#pragma once

#include <gtest/gtest.h>

#include "platform/linux/login/LinuxLoginItems.h"
#include "settings/StartupLaunch_pref.h"
#include "tests/platform/linux/login/AutostartFolder.h"

namespace quindle {

inline constexpr const char* ownEntry = "com.fernhollow.Quindle-Helper.desktop";
inline const QString helperIdentifier = QStringLiteral("com.fernhollow.Quindle-Helper");
inline const QByteArray helperLine = "Exec=quindle-helper";

/// A user's login items in a temporary folder, and what is logged meanwhile.
class LoginItemsFixture : public testing::Test
{
protected:
    LoginItemsFixture()
    {
        QFile::link(folder.program(), folder.path(QStringLiteral("bin/quindle-helper")));
        messages().clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { messages().append(text); });
    }
    ~LoginItemsFixture() override { qInstallMessageHandler(m_former); }

    static QStringList& messages()
    {
        static QStringList list;
        return list;
    }

    bool isLoginItem() { return StartupLaunch_pref::isAppLoginItem(items, folder.bundle()); }
    void launchOnLogin(bool enable) { StartupLaunch_pref::setLaunchOnLogin(items, folder.bundle(), enable); }

    QStringList urls()
    {
        QStringList urls;
        const auto list = items.snapshot();
        for (const LoginItems::Item item : list.value())
            urls.append(items.resolve(item).value_or(QString()));
        return urls;
    }

    AutostartFolder folder;
    LinuxLoginItems items{folder.places()};

private:
    QtMessageHandler m_former = nullptr;
};

} // namespace quindle
