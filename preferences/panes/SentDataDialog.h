#pragma once

#include <QDialog>

namespace quindle {

/// Shows the exact text of the daily upload, to be read and copied; with an empty text it says that nothing
/// would be sent.
class SentDataDialog : public QDialog
{
    Q_OBJECT

public:
    SentDataDialog(const QString& sentText, QWidget* parent);
};

} // namespace quindle
