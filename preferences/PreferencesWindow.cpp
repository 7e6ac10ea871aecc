#include "preferences/PreferencesWindow.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace quindle {

namespace {

std::unique_ptr<QWidget> makeWindow()
{
    auto window = std::make_unique<QWidget>();
    window->setWindowTitle(QStringLiteral("Preferences"));
    auto* text = new QLabel(QStringLiteral("There is nothing to set here yet."), window.get());
    text->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(text);
    const int unit = window->fontMetrics().height();
    window->resize(unit * 26, unit * 12);
    return window;
}

} // namespace

PreferencesWindow::PreferencesWindow() = default;
PreferencesWindow::~PreferencesWindow() = default;

void PreferencesWindow::showPreferencesWindow()
{
    if (!m_window)
        m_window = makeWindow();
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace quindle
