#pragma once

#include <QRadioButton>

namespace quindle {

/// A radio button that every choice clicks, whether or not it is selected already: the mouse, the keyboard,
/// its mnemonic, and assistive programs too, for which the toolkit's own only toggles.
class RadioCell : public QRadioButton
{
    Q_OBJECT

public:
    explicit RadioCell(const QString& label, QWidget* parent = nullptr);
};

} // namespace quindle
