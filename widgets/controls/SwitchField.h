#pragma once

#include "widgets/controls/PlainButton.h"

namespace quindle {

/// A value whose unit is switched by a click: dotted underline, and a frame while it has the keyboard.
class SwitchField : public PlainButton
{
    Q_OBJECT

public:
    explicit SwitchField(QWidget* parent = nullptr);

    /// Quiet text is less prominent, as in a PlainLabel.
    void setQuiet(bool quiet);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;

private:
    QRect textRect() const;

    bool m_quiet = false;
};

} // namespace quindle
