#pragma once

#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "preferences/panes/StatusBarTitle.h"

/// Services of the windows that the helper has a part in.
namespace quindle {

class HelperEnd;

/// A loop without timers: the windows refresh when the helper does, which learns when somebody looks.
class HelpersRunLoop : public RunLoop
{
public:
    explicit HelpersRunLoop(HelperEnd& helper);

    /// Never fires.
    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;

    Punctuality keepPunctual() override;

private:
    HelperEnd& m_helper;
    std::weak_ptr<void> m_watched;
};

/// Notifications between processes, which the helper hears and sends for its windows.
class HelpersNotifications : public DistributedNotificationCenter
{
public:
    explicit HelpersNotifications(HelperEnd& helper);

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;
    void post(const QString& name) override;

    /// A notification that the helper has heard.
    void hear(const QString& name);

private:
    HelperEnd& m_helper;
    NotificationCenter m_observers;
};

/// Quitting the program that shows windows is quitting the helper.
class HelpersApplication : public Application
{
public:
    /// `windows` is the process itself.
    HelpersApplication(HelperEnd& helper, Application& windows);

    void terminate() override;
    void activateIgnoringOtherApplications() override { m_windows.activateIgnoringOtherApplications(); }
    bool showsTranslucentWindows() const override { return m_windows.showsTranslucentWindows(); }

private:
    HelperEnd& m_helper;
    Application& m_windows;
};

/// The title as the preferences refresh it: the helper's in the panel, and that of the previews.
class SharedTitle : public StatusBarTitle
{
public:
    /// `own` is this process's.
    SharedTitle(HelperEnd& helper, StatusBarTitle& own);

    void updateStatusBarTitle() override;
    void reloadBattery() override;
    std::optional<TitleValues> titleValues() const override { return m_own.titleValues(); }
    Punctuality watchValues() const override { return m_own.watchValues(); }
    std::optional<ShownItem> shownItem() const override { return m_shownItem; }

    /// What the helper has sent.
    void setShownItem(const ShownItem& shown) { m_shownItem = shown; }

private:
    HelperEnd& m_helper;
    StatusBarTitle& m_own;
    std::optional<ShownItem> m_shownItem;
};

} // namespace quindle
