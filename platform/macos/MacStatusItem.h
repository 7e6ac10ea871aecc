#pragma once

#include <QObject>
#include <QSizeF>

#include "platform/StatusBar.h"
#include "platform/StatusMenu.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// One row as the system's menu has it.
MenuEntry menuEntry(const StatusMenu& menu, int id);

/// Brings the system's item up to date once what is under way is done: a refresh sets values that it replaces
/// at once.
class MacStatusItem : public StatusItem
{
public:
    /// Its pictures are in the folder `icons` of `resources`.
    MacStatusItem(std::unique_ptr<StatusItemCalls> calls, QString resources);

    void setTitle(const QString& title) override;
    QString title() const override { return m_title; }
    void setImage(std::shared_ptr<Image> image) override;
    std::shared_ptr<Image> image() const override { return m_image; }
    void setMenuBarFontSize(double points) override;
    /// The menu bar has room for every title.
    void setFallbackText(const QString& /*text*/) override {}
    void setToolTipText(const QString& text) override;
    void setMenu(StatusMenu* menu) override;

private:
    struct Shown
    {
        QString title;
        QString imageFile;
        QSizeF imageSize;
        double fontSize = 0; ///< 0 for the system's own
        QString toolTip;
    };

    void showSoon();
    void show();

    std::shared_ptr<StatusItemCalls> m_calls;
    QString m_resources;
    QString m_title;
    QString m_toolTip;
    double m_fontSize = 0;
    std::shared_ptr<Image> m_image;
    Shown m_shown;
    bool m_isShownSoon = false;
    QObject m_turn; ///< its end cancels what is to be shown
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
