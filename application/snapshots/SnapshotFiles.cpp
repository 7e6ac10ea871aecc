#include "application/snapshots/SnapshotFiles.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QSaveFile>

#include "common/Paths.h"
#include "common/Translation.h"
#include "records/SnapshotExport.h"
#include "widgets/FileDialog.h"

namespace quindle {

namespace {

QString pathOf(const QString& selected)
{
    return pathText(QFile::encodeName(selected));
}

} // namespace

void askForArchive(QWidget* parent, const std::function<void(const QString& path)>& chosen)
{
    auto* dialog = makeFileDialog(parent, translated("SnapshotFiles", "Import Snapshots"),
                                  {translated("SnapshotFiles", "Archives of snapshots (*.qndarchive)"),
                                   translated("SnapshotFiles", "All files (*)")});
    dialog->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(dialog, &QFileDialog::fileSelected, parent,
                     [chosen](const QString& path) { chosen(pathOf(path)); });
    dialog->open();
}

void askForExportFile(QWidget* parent,
                      const std::function<void(const QString& path, bool withSerialNumbers)>& chosen)
{
    auto* dialog = makeFileDialog(
        parent, translated("SnapshotFiles", "Export Snapshots"),
        {translated("SnapshotFiles", "Table (*.csv)"), translated("SnapshotFiles", "JSON (*.json)")});
    // The toolkit's own, which has room for one more choice.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->selectFile(QStringLiteral("snapshots.csv"));
    auto* withSerials = new QCheckBox(translated("SnapshotFiles", "With serial &numbers"), dialog);
    if (auto* grid = qobject_cast<QGridLayout*>(dialog->layout()))
        grid->addWidget(withSerials, grid->rowCount(), 0, 1, grid->columnCount());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        // A name without one gets that of the kind that is chosen.
        dialog->setDefaultSuffix(filter.contains(QStringLiteral(".json")) ? QStringLiteral("json")
                                                                          : QStringLiteral("csv"));
    });
    QObject::connect(dialog, &QFileDialog::fileSelected, parent, [chosen, withSerials](const QString& path) {
        chosen(pathOf(path), withSerials->isChecked());
    });
    dialog->open();
}

QString exportToFile(const QString& path, const QVariantList& records, bool withSerialNumbers)
{
    ExportOptions options;
    options.format =
        path.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive) ? ExportFormat::Json : ExportFormat::Csv;
    options.identity = withSerialNumbers ? ExportedIdentity::Included : ExportedIdentity::LeftOut;
    QSaveFile file(QFile::decodeName(pathBytes(path)));
    // Written beside the file and then renamed: a failed export leaves the previous one.
    const bool isWritten =
        file.open(QIODevice::WriteOnly) &&
        exportSnapshots(records, options,
                        [&file](const QByteArray& bytes) { return file.write(bytes) == bytes.size(); }) &&
        // By itself: a failure of the flush that committing makes would go unnoticed.
        file.flush() && file.commit();
    return isWritten ? QString() : path + QStringLiteral(": ") + file.errorString();
}

} // namespace quindle
