#pragma once

#include <QProgressBar>
#include <QTimer>

namespace quindle {

/// How far reading has come, shown only if it takes long.
class LoadingBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit LoadingBar(const QString& name, QWidget* parent = nullptr);

    /// Begins with no figure.
    void setBusy(bool isBusy);

private:
    QTimer m_slow;
};

} // namespace quindle
