#pragma once

#include "platform/StatusBar.h"
#include "platform/StatusMenu.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// One row as the system's menu has it.
MenuEntry menuEntry(const StatusMenu& menu, int id);

class MacStatusItem : public StatusItem
{
public:
    /// Its pictures are in the folder `icons` of `resources`.
    MacStatusItem(std::unique_ptr<StatusItemCalls> calls, QString resources);

    void setTitle(const QString& title) override;
    QString title() const override { return m_title; }
    void setImage(std::shared_ptr<Image> image) override;
    std::shared_ptr<Image> image() const override { return m_image; }
    void setMenuBarFontSize(double points) override { m_calls->setFontSize(points); }
    /// The menu bar has room for every title.
    void setFallbackText(const QString& /*text*/) override {}
    void setToolTipText(const QString& text) override;
    void setMenu(StatusMenu* menu) override;

private:
    std::shared_ptr<StatusItemCalls> m_calls;
    QString m_resources;
    QString m_title;
    QString m_toolTip;
    std::shared_ptr<Image> m_image;
};

class MacStatusBar : public StatusBar
{
public:
    using Make = std::function<std::unique_ptr<StatusItemCalls>(double length)>;

    MacStatusBar(Make make, QString resources);

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

private:
    Make m_make;
    QString m_resources;
};

} // namespace quindle
