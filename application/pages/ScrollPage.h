#pragma once

#include <QScrollArea>

namespace quindle {

/// A page that scrolls up and down where the window is lower than what is on it; by the keyboard too. It
/// scrolls sideways only on a screen that is too narrow for it.
class ScrollPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollPage(QWidget* parent = nullptr);

    /// What is on the page; it gets a layout by the page.
    QWidget& content() const { return *m_content; }

    /// As wide as what is on it.
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_content;
};

} // namespace quindle
