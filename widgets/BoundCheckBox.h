#pragma once

#include <QCheckBox>

namespace quindle {

/// A check box that shows a setting. Tells changes by the user from those that only fill it in: also one that
/// an assistive technology makes, which is no click.
class BoundCheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool shown READ isChecked WRITE setShown USER true)

public:
    explicit BoundCheckBox(QWidget* parent = nullptr);

    /// Fills it in.
    void setShown(bool checked);

Q_SIGNALS:
    /// The user has switched it.
    void switched(bool on);

private:
    bool m_isFilling = false;
};

} // namespace quindle
