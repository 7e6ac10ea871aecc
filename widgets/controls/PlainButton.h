#pragma once

#include <QAbstractButton>

namespace quindle {

/// A button with a literal label that Enter presses as well as Space. What it looks like is up to the class
/// that derives from it.
class PlainButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString label READ label WRITE setLabel)

public:
    explicit PlainButton(QWidget* parent = nullptr);

    const QString& label() const { return m_label; }
    void setLabel(const QString& label);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_label;
};

} // namespace quindle
