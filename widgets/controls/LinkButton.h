#pragma once

#include <QAbstractButton>

namespace quindle {

/// A button that reads as an underlined part of quiet text. Enter presses it as well as Space.
class LinkButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LinkButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quindle
