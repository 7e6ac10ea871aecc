#pragma once

#include "widgets/controls/PlainButton.h"

namespace quindle {

/// An entry of the menu under the battery view. The pointer gives it the keyboard as it passes, so that only
/// one entry ever looks chosen.
class MenuEntry : public PlainButton
{
    Q_OBJECT

public:
    explicit MenuEntry(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace quindle
