#include "widgets/FileDialog.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>

#include "common/Paths.h"

namespace quindle {

namespace {

/// Completions may arrive after the file was chosen. They would open their list while the window gets the
/// keyboard back, which the toolkit then keeps from its controls.
void endCompletion(const QFileDialog& dialog)
{
    for (auto* field : dialog.findChildren<QLineEdit*>())
        field->setCompleter(nullptr);
}

} // namespace

QFileDialog* makeFileDialog(QWidget* parent, const QString& title, const QStringList& filters)
{
    auto* dialog = new QFileDialog(parent, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilters(filters);
    // Not the folder that the program was started in, which nobody chose.
    dialog->setDirectory(QFile::decodeName(pathBytes(homeFolder())));
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog] { endCompletion(*dialog); });
    return dialog;
}

} // namespace quindle
