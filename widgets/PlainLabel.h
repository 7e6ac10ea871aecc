#pragma once

#include <QLabel>

namespace quindle {

/// One line of text that is shown literally and cut with an ellipsis where it does not fit; then its tool tip
/// has all of it.
class PlainLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool quiet READ isQuiet WRITE setQuiet)

public:
    explicit PlainLabel(QWidget* parent = nullptr);

    /// Quiet text is less prominent, like a caption.
    bool isQuiet() const { return m_quiet; }
    void setQuiet(bool quiet);

    /// Where the ellipsis goes: at the end of the text unless set otherwise.
    void setElideMode(Qt::TextElideMode elideMode);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_quiet = false;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};

} // namespace quindle
