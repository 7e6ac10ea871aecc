#pragma once

#include "platform/NotificationCenter.h"
#include "platform/PowerSources.h"
#include "platform/StatusBar.h"
#include "platform/UrlSession.h"

/// Services that only the helper uses: the process of its windows shows nothing in a panel, sends nothing,
/// and hears nothing of the system's sleep and power.
namespace quindle {

/// Keeps title and image, which its owner asks for, and shows nothing.
class SilentStatusItem : public StatusItem
{
public:
    void setTitle(const QString& title) override { m_title = title; }
    QString title() const override { return m_title; }
    void setImage(std::shared_ptr<Image> image) override { m_image = std::move(image); }
    std::shared_ptr<Image> image() const override { return m_image; }
    void setMenuBarFontSize(double /*points*/) override {}
    void setFallbackText(const QString& /*text*/) override {}
    void setToolTipText(const QString& /*text*/) override {}
    void setMenu(StatusMenu* /*menu*/) override {}

private:
    QString m_title;
    std::shared_ptr<Image> m_image;
};

class SilentStatusBar : public StatusBar
{
public:
    std::unique_ptr<StatusItem> statusItemWithLength(double /*length*/) override
    {
        return std::make_unique<SilentStatusItem>();
    }
};

/// Posts nothing, so that the daily upload leaves from the helper alone. Asks nothing either: what the helper
/// has found out is in the settings.
class SilentUrlSession : public UrlSession
{
public:
    void post(const QString& /*url*/, const QByteArray& /*body*/,
              std::function<void(int status, const QByteArray& body)> /*answered*/) override
    {
    }

    std::optional<QByteArray> contents(const QString& /*url*/) override { return std::nullopt; }
};

class SilentWorkspaceNotifications : public WorkspaceNotifications
{
public:
    void addWillSleepObserver(NotificationCenter::Observer /*observer*/) override {}
    void addDidWakeObserver(NotificationCenter::Observer /*observer*/) override {}
};

class SilentPowerEvents : public PowerEvents
{
public:
    void setObserver(std::function<void()> /*observer*/) override {}
};

} // namespace quindle
