#pragma once

#include <QStringList>

class QFileDialog;
class QWidget;

namespace quindle {

/// A dialog for one file, in the user's home folder; not shown yet, and deleted once it is closed. `filters`
/// are patterns with their captions, such as "Tables (*.csv)".
QFileDialog* makeFileDialog(QWidget* parent, const QString& title, const QStringList& filters);

} // namespace quindle
