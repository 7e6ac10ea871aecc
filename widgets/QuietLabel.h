#pragma once

#include <QLabel>

namespace quindle {

/// Plain text that explains a control: a little smaller and quieter than the control's own.
class QuietLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QuietLabel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The size of such text next to text in `font`.
QFont quietFont(const QFont& font);

} // namespace quindle
