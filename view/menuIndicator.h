#pragma once

#include <QProgressBar>

namespace quindle {

class ProgressIndicator;

/// A bar of the battery view: a rounded track with a fill in one base colour, which is drawn through the
/// content filters of the indicator that the bar follows; they alone decide what colour a person sees.
/// inherited: the name begins with a small letter, as interface files write it.
class menuIndicator : public QProgressBar
{
    Q_OBJECT
    Q_PROPERTY(double percent READ percent WRITE setPercent USER true)

public:
    explicit menuIndicator(QWidget* parent = nullptr);
    ~menuIndicator() override;

    /// Draws through this indicator's filters from now on. It must outlive the bar.
    void follow(ProgressIndicator& indicator);

    /// How full the bar is. Any number: drawn empty up to 0 and when not a number, full from 100.
    double percent() const { return m_percent; }
    void setPercent(double percent);

    /// The colour of the fill before the filters, on a light or a dark background.
    static QColor baseColor(bool onDark);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fillColor() const;

    ProgressIndicator* m_indicator = nullptr;
    double m_percent = 0;
};

} // namespace quindle
