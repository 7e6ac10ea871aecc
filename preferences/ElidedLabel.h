#pragma once

#include <QLabel>

namespace quindle {

/// One line of literal text that loses its middle where it does not fit; then its tool tip tells it whole.
/// Assistive programs always read the whole text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// Quiet text says something about what is shown instead of showing it.
    void setQuiet(bool quiet);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_quiet = false;
};

} // namespace quindle
