#pragma once

#include <QWidget>

namespace quindle {

/// The window of the menu bar text: closed by Escape and Control-W, and moved by its background where that is
/// wanted. Closing it ends editing, so that a text that was typed is not lost.
class HelperPreferencesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelperPreferencesWindow(QWidget* parent = nullptr);

    bool isMovableByWindowBackground() const { return m_movableByBackground; }
    void setMovableByWindowBackground(bool movable) { m_movableByBackground = movable; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    /// Leaves the window to the desktop until the button is released.
    virtual void startMove();

private:
    bool m_movableByBackground = false;
};

} // namespace quindle
