#pragma once

#include <QWidget>

namespace quindle {

/// A warning sign in the colour of quiet text, as high as a line of its font.
class WarningImage : public QWidget
{
    Q_OBJECT

public:
    explicit WarningImage(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quindle
