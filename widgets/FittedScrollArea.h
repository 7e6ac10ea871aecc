#pragma once

#include <QScrollArea>

namespace quindle {

/// Shows its widget whole, and scrolls it only where the screen is lower. The window around it gets its size
/// from it.
class FittedScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FittedScrollArea(QWidget* parent = nullptr);

    /// The widget's, bounded by the screen's height.
    QSize sizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int room() const;
};

} // namespace quindle
