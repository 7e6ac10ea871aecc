#pragma once

#include <QStringList>

#include "platform/StatusBar.h"

namespace quindle {

/// What was set on a status item, and nothing more.
struct StatusItemRecord
{
    double length = 0;
    QString title;
    QStringList titlesSet; ///< every title set, in order; readers may clear it
    std::shared_ptr<Image> image;
    double fontSize = 0; ///< points; 0 before it is set
    QString fallbackText;
    QString toolTip;
    StatusMenu* menu = nullptr;
};

class RecordedStatusItem : public StatusItem
{
public:
    explicit RecordedStatusItem(std::shared_ptr<StatusItemRecord> record);

    void setTitle(const QString& title) override;
    QString title() const override;
    void setImage(std::shared_ptr<Image> image) override;
    std::shared_ptr<Image> image() const override;
    void setMenuBarFontSize(double points) override;
    void setFallbackText(const QString& text) override;
    void setToolTipText(const QString& text) override;
    void setMenu(StatusMenu* menu) override;

private:
    std::shared_ptr<StatusItemRecord> m_record;
};

/// A status bar without a screen.
class RecordedStatusBar : public StatusBar
{
public:
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

    /// The record of the item that was made last; null before the first.
    const std::shared_ptr<StatusItemRecord>& lastItem() const { return m_lastItem; }

private:
    std::shared_ptr<StatusItemRecord> m_lastItem;
};

} // namespace quindle
