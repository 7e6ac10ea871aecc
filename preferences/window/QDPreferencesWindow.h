#pragma once

#include <QWidget>

class QScrollArea;

namespace quindle {

class PreferencesToolbar;

/// A plain window with a toolbar above one view, which also closes on Control-W. It is as large as the view
/// wants and cannot be made larger by hand; its top left corner stays where it is.
class QDPreferencesWindow : public QWidget
{
    Q_OBJECT

public:
    /// What a view needs; where the screen is too low for it, the view scrolls.
    struct Fit
    {
        QSize size;
        bool scrolls = false;
    };

    /// Titled, with buttons to close and to minimize it.
    QDPreferencesWindow();

    /// Null when it has none.
    PreferencesToolbar* toolbar() const { return m_toolbar; }

    /// Takes the toolbar over, or leaves the window without one.
    void setToolbar(PreferencesToolbar* toolbar);

    /// Puts a view into the window; null leaves it empty. With `inVisualEffectView` there is another view in
    /// between: desktops do not blur what is behind a window's content, so that view is plain.
    void setContent(QWidget* view, bool inVisualEffectView);

    /// The window's content below the toolbar.
    QWidget* contentView() const { return m_contentView; }

    Fit fitFor(const QWidget& view) const;
    void setScrolls(bool scrolls);

    /// Whether a press on the background, that is on no control, moves the window.
    bool isMovableByWindowBackground() const { return m_movableByWindowBackground; }
    void setMovableByWindowBackground(bool movable) { m_movableByWindowBackground = movable; }

Q_SIGNALS:
    /// View or toolbar may want another size.
    void contentSizeMayDiffer();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    /// Leaves the window to the desktop until the button is released.
    virtual void startMove();

private:
    void applyColours();

    PreferencesToolbar* m_toolbar = nullptr;
    QScrollArea* m_scrollArea;
    QWidget* m_contentView;
    bool m_movableByWindowBackground = false;
};

} // namespace quindle
