#include "application/pages/SnapshotsPage.h"

#include <QCheckBox>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QShortcut>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include "application/pages/CompareDialog.h"
#include "application/pages/SavedSnapshots.h"
#include "application/pages/SnapshotTable.h"
#include "common/Paths.h"
#include "facts/ValueTexts.h"
#include "records/SnapshotExport.h"
#include "widgets/LinkButton.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

constexpr int slowAfter = 200; // milliseconds; what is there sooner needs no progress bar

QString countText(qsizetype count)
{
    if (count == 1)
        return QStringLiteral("1 snapshot");
    return groupedText(count, groupSeparator(FactPlace::View)) + QStringLiteral(" snapshots");
}

/// Why it could not be written; empty on success.
QString writeExport(const QString& path, const QVariantList& records, const ExportOptions& options)
{
    QSaveFile file(QFile::decodeName(pathBytes(path)));
    const bool isWritten =
        file.open(QIODevice::WriteOnly) &&
        exportSnapshots(records, options,
                        [&file](const QByteArray& bytes) { return file.write(bytes) == bytes.size(); }) &&
        file.commit();
    return isWritten ? QString() : path + QStringLiteral(": ") + file.errorString();
}

} // namespace

SnapshotsPage::SnapshotsPage(SavedSnapshots& snapshots, MakeSnapshot makeSnapshot, QWidget* parent)
    : QWidget(parent)
    , m_snapshots(snapshots)
    , m_makeSnapshot(std::move(makeSnapshot))
    , m_table(new SnapshotTable(this))
    , m_view(new QTableView(this))
    , m_count(new QuietLabel(this))
    , m_nothing(new QLabel(QStringLiteral("No snapshots yet"), this))
    , m_told(new QuietLabel(this))
    , m_undo(new LinkButton(this))
    , m_progress(new QProgressBar(this))
    , m_slow(new QTimer(this))
    , m_save(button(QStringLiteral("&Save Now"), &SnapshotsPage::saveNow))
    , m_compare(button(QStringLiteral("&Compare"), &SnapshotsPage::compare))
    , m_delete(button(QStringLiteral("&Delete"), &SnapshotsPage::deleteSelected))
    , m_import(button(QStringLiteral("&Import..."), &SnapshotsPage::askForImport))
    , m_export(button(QStringLiteral("&Export..."), &SnapshotsPage::askForExport))
{
    setObjectName(QStringLiteral("snapshotsPage"));
    setAccessibleName(QStringLiteral("Snapshots"));
    m_view->setModel(m_table);
    m_view->setAccessibleName(QStringLiteral("Snapshots"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setShowGrid(false);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(QStringLiteral("Reading the snapshots"));
    m_progress->hide();
    m_slow->setSingleShot(true);
    m_slow->setInterval(slowAfter);
    m_undo->setText(QStringLiteral("&Undo"));
    m_undo->setAccessibleName(QStringLiteral("Undo deleting"));
    m_undo->hide();
    m_compare->setToolTip(QStringLiteral("Two snapshots that are selected, beside each other"));

    auto* layout = new QVBoxLayout(this);
    auto* head = new QHBoxLayout;
    head->addWidget(m_count, 1);
    head->addWidget(m_progress);
    head->addWidget(m_save);
    auto* line = new QHBoxLayout;
    line->addWidget(m_told);
    line->addWidget(m_undo);
    line->addStretch(1);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_compare);
    foot->addWidget(m_delete);
    foot->addStretch(1);
    foot->addWidget(m_import);
    foot->addWidget(m_export);
    layout->addLayout(head);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_nothing, 1);
    layout->addLayout(line);
    layout->addLayout(foot);

    connect(new QShortcut(QKeySequence::Delete, m_view), &QShortcut::activated, this,
            &SnapshotsPage::deleteSelected);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this, &SnapshotsPage::undo);
    connect(m_undo, &LinkButton::clicked, this, &SnapshotsPage::undo);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SnapshotsPage::updateButtons);
    connectSnapshots();
    fitToFont();
}

QPushButton* SnapshotsPage::button(const QString& text, void (SnapshotsPage::*action)())
{
    auto* made = new QPushButton(text, this);
    connect(made, &QPushButton::clicked, this, action);
    return made;
}

void SnapshotsPage::connectSnapshots()
{
    connect(&m_snapshots, &SavedSnapshots::changed, this, &SnapshotsPage::showRecords);
    connect(&m_snapshots, &SavedSnapshots::busyChanged, this, &SnapshotsPage::showBusy);
    connect(&m_snapshots, &SavedSnapshots::told, this, &SnapshotsPage::tell);
    connect(m_slow, &QTimer::timeout, m_progress, &QWidget::show);
    showRecords();
    showBusy();
}

void SnapshotsPage::refresh()
{
    if (isVisible())
        m_snapshots.load();
}

void SnapshotsPage::showRecords()
{
    m_table->setRecords(m_snapshots.records());
    const bool isEmpty = m_snapshots.records().isEmpty();
    m_count->setText(isEmpty ? QString() : countText(m_snapshots.records().size()));
    m_view->setVisible(!isEmpty);
    m_nothing->setVisible(isEmpty);
    updateButtons();
}

void SnapshotsPage::showBusy()
{
    if (m_snapshots.isBusy()) {
        m_slow->start();
    } else {
        m_slow->stop();
        m_progress->hide();
    }
    updateButtons();
}

void SnapshotsPage::updateButtons()
{
    const qsizetype selected = m_view->selectionModel()->selectedRows().size();
    const bool isIdle = !m_snapshots.isBusy();
    m_compare->setEnabled(selected == 2);
    m_delete->setEnabled(isIdle && selected > 0);
    m_export->setEnabled(!m_snapshots.records().isEmpty());
    m_undo->setVisible(!m_deleted.isEmpty());
}

QVariantList SnapshotsPage::selectedRecords() const
{
    QVariantList records;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        records.append(m_table->record(index.row()));
    return records;
}

void SnapshotsPage::saveNow()
{
    if (const auto record = m_makeSnapshot())
        m_snapshots.add(*record);
    else
        tell(QStringLiteral("There is no battery to save a snapshot of"));
}

void SnapshotsPage::deleteSelected()
{
    const QVariantList records = selectedRecords();
    if (records.isEmpty() || m_snapshots.isBusy())
        return;
    m_deleted = records;
    m_snapshots.remove(records);
}

void SnapshotsPage::undo()
{
    if (m_deleted.isEmpty())
        return;
    m_snapshots.merge(std::exchange(m_deleted, {}));
    updateButtons();
}

void SnapshotsPage::compare()
{
    const QVariantList records = selectedRecords();
    if (records.size() != 2)
        return;
    auto* dialog = new CompareDialog(records[0].toMap(), records[1].toMap(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void SnapshotsPage::askForImport()
{
    auto* dialog = new QFileDialog(this, QStringLiteral("Import Snapshots"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(
        {QStringLiteral("Archives of snapshots (*.qndarchive)"), QStringLiteral("All files (*)")});
    dialog->setDirectory(QFile::decodeName(pathBytes(homeFolder())));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& path) { m_snapshots.importFrom(pathText(QFile::encodeName(path))); });
    dialog->open();
}

void SnapshotsPage::askForExport()
{
    auto* dialog = new QFileDialog(this, QStringLiteral("Export Snapshots"));
    // The toolkit's own, which has room for one more choice.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({QStringLiteral("Table (*.csv)"), QStringLiteral("JSON (*.json)")});
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->setDirectory(QFile::decodeName(pathBytes(homeFolder())));
    dialog->selectFile(QStringLiteral("snapshots.csv"));
    auto* withSerials = new QCheckBox(QStringLiteral("With serial &numbers"), dialog);
    if (auto* grid = qobject_cast<QGridLayout*>(dialog->layout()))
        grid->addWidget(withSerials, grid->rowCount(), 0, 1, grid->columnCount());
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.contains(QStringLiteral(".json")) ? QStringLiteral("json")
                                                                          : QStringLiteral("csv"));
    });
    connect(dialog, &QFileDialog::fileSelected, this, [this, withSerials](const QString& path) {
        exportTo(pathText(QFile::encodeName(path)), withSerials->isChecked());
    });
    dialog->open();
}

void SnapshotsPage::exportTo(const QString& path, bool withSerialNumbers)
{
    ExportOptions options;
    options.format =
        path.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive) ? ExportFormat::Json : ExportFormat::Csv;
    options.identity = withSerialNumbers ? ExportedIdentity::Included : ExportedIdentity::LeftOut;
    const QString failure = writeExport(path, m_snapshots.records(), options);
    tell(failure.isEmpty() ? QStringLiteral("Exported") : failure);
}

void SnapshotsPage::tell(const QString& line)
{
    m_told->setText(line);
    m_told->setToolTip(line.toHtmlEscaped());
    updateButtons();
}

void SnapshotsPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void SnapshotsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void SnapshotsPage::fitToFont()
{
    const int line = fontMetrics().height();
    layout()->setContentsMargins(line * 3 / 2, line, line * 3 / 2, line);
    layout()->setSpacing(line / 2);
    m_progress->setMaximumSize(line * 6, line / 2);
    m_view->verticalHeader()->setDefaultSectionSize(line * 8 / 5);
    // The smallest window has room for all; the last column takes what is left.
    constexpr double lines[SnapshotTable::columns] = {7.5, 4, 5.3, 3.7, 4};
    for (int column = 0; column < SnapshotTable::columns; ++column)
        m_view->setColumnWidth(column, qRound(line * lines[column]));
    for (QWidget* quiet :
         {static_cast<QWidget*>(m_count), static_cast<QWidget*>(m_told), static_cast<QWidget*>(m_undo)})
        quiet->setFont(quietFont(font()));
}

} // namespace quindle

#include "moc_SnapshotsPage.cpp"
