#include "application/snapshots/LoadingBar.h"

namespace quindle {

namespace {

constexpr int slowAfter = 200; // milliseconds; what takes less needs no bar

} // namespace

LoadingBar::LoadingBar(const QString& name, QWidget* parent)
    : QProgressBar(parent)
{
    setAccessibleName(name);
    setFormat(QStringLiteral("%p %"));
    setRange(0, 100);
    hide();
    m_slow.setSingleShot(true);
    m_slow.setInterval(slowAfter);
    connect(&m_slow, &QTimer::timeout, this, &QWidget::show);
}

void LoadingBar::setBusy(bool isBusy)
{
    reset();
    if (isBusy) {
        m_slow.start();
    } else {
        m_slow.stop();
        hide();
    }
}

} // namespace quindle

#include "moc_LoadingBar.cpp"
