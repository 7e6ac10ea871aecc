#include "application/snapshots/SnapshotsPage.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "application/saved/SavedSnapshots.h"
#include "application/snapshots/CompareDialog.h"
#include "application/snapshots/LoadingBar.h"
#include "application/snapshots/SnapshotFiles.h"
#include "application/snapshots/SnapshotView.h"
#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/LinkButton.h"

namespace quindle {

namespace {

QString countText(qsizetype count)
{
    if (count == 1)
        return translated("Snapshots", "1 snapshot");
    return translated("Snapshots", "%1 snapshots", nullptr, count)
        .arg(groupedText(count, groupSeparator(FactPlace::View)));
}

} // namespace

SnapshotsPage::SnapshotsPage(SavedSnapshots& snapshots, MakeSnapshot makeSnapshot, QWidget* parent)
    : QWidget(parent)
    , m_snapshots(snapshots)
    , m_makeSnapshot(std::move(makeSnapshot))
    , m_count(new QuietLabel(this))
    , m_progress(new LoadingBar(tr("Reading the snapshots"), this))
    , m_save(button(tr("&Save Now"), &SnapshotsPage::saveNow))
    , m_view(new SnapshotView(this))
    , m_nothing(new QLabel(this))
    , m_message(new QuietLabel(this))
    , m_undo(new LinkButton(this))
    , m_compare(button(tr("&Compare"), &SnapshotsPage::compare))
    , m_delete(button(tr("&Delete"), &SnapshotsPage::deleteSelected))
    , m_import(button(tr("&Import..."), &SnapshotsPage::askForImport))
    , m_export(button(tr("&Export..."), &SnapshotsPage::askForExport))
{
    setObjectName(QStringLiteral("snapshotsPage"));
    setAccessibleName(tr("Snapshots"));
    m_nothing->setObjectName(QStringLiteral("nothing"));
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setTextFormat(Qt::PlainText);
    m_nothing->setWordWrap(true);
    m_undo->setText(tr("&Undo"));
    m_undo->setAccessibleName(tr("Undo deleting"));
    m_undo->hide();
    m_compare->setToolTip(tr("Two snapshots that are selected, beside each other"));
    layOut();
    connect(new QShortcut(QKeySequence::Delete, m_view), &QShortcut::activated, this,
            &SnapshotsPage::deleteSelected);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this, &SnapshotsPage::undo);
    connect(m_undo, &LinkButton::clicked, this, &SnapshotsPage::undo);
    connect(m_view, &SnapshotView::selectedChanged, this, &SnapshotsPage::updateButtons);
    connectSnapshots();
    fitToFont();
}

void SnapshotsPage::layOut()
{
    auto* layout = new QVBoxLayout(this);
    auto* head = new QHBoxLayout;
    head->addWidget(m_count, 1);
    head->addWidget(m_progress);
    head->addWidget(m_save);
    auto* line = new QHBoxLayout;
    line->addWidget(m_message);
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
    connect(&m_snapshots, &SavedSnapshots::message, this, &SnapshotsPage::showMessage);
    connect(&m_snapshots, &SavedSnapshots::removingAll, this, [this] { m_deleted.clear(); });
    connect(&m_snapshots, &SavedSnapshots::progressed, m_progress, &QProgressBar::setValue);
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
    m_view->setRecords(m_snapshots.records());
    if (!m_deleted.isEmpty() && m_snapshots.records().contains(m_deleted.constFirst()))
        m_deleted.clear();
    const bool isEmpty = m_snapshots.records().isEmpty();
    m_count->setText(isEmpty ? QString() : countText(m_snapshots.records().size()));
    m_view->setVisible(!isEmpty);
    m_nothing->setText(m_snapshots.fault().isEmpty() ? tr("No snapshots yet") : m_snapshots.fault());
    updateButtons();
}

void SnapshotsPage::showBusy()
{
    m_progress->setBusy(m_snapshots.isBusy());
    updateButtons();
}

void SnapshotsPage::updateButtons()
{
    const qsizetype selected = m_view->selectedCount();
    const bool isIdle = !m_snapshots.isBusy();
    m_nothing->setVisible(isIdle && m_snapshots.records().isEmpty());
    m_compare->setEnabled(selected == 2);
    m_delete->setEnabled(isIdle && selected > 0);
    m_export->setEnabled(!m_snapshots.records().isEmpty());
    m_undo->setVisible(!m_deleted.isEmpty());
}

void SnapshotsPage::saveNow()
{
    if (const auto record = m_makeSnapshot())
        m_snapshots.add(*record);
    else
        showMessage(tr("There is no battery to save a snapshot of"));
}

void SnapshotsPage::deleteSelected()
{
    const QVariantList records = m_view->selectedRecords();
    if (records.isEmpty() || m_snapshots.isBusy())
        return;
    m_deleted = records;
    m_snapshots.remove(records);
}

void SnapshotsPage::undo()
{
    // Kept until they are back: writing may fail, and nobody else has them.
    if (!m_deleted.isEmpty() && !m_snapshots.isBusy())
        m_snapshots.merge(m_deleted);
}

void SnapshotsPage::compare()
{
    const QVariantList records = m_view->selectedRecords();
    if (records.size() != 2)
        return;
    auto* dialog = new CompareDialog(records[0].toMap(), records[1].toMap(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void SnapshotsPage::askForImport()
{
    askForArchive(this, [this](const QString& path) { m_snapshots.importFrom(path); });
}

void SnapshotsPage::askForExport()
{
    askForExportFile(
        this, [this](const QString& path, bool withSerialNumbers) { exportTo(path, withSerialNumbers); });
}

void SnapshotsPage::exportTo(const QString& path, bool withSerialNumbers)
{
    const QString failure = exportToFile(path, m_snapshots.records(), withSerialNumbers);
    showMessage(failure.isEmpty() ? tr("Exported") : failure);
}

void SnapshotsPage::showMessage(const QString& line)
{
    m_message->setText(line);
    m_message->setToolTip(line.toHtmlEscaped());
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
    m_progress->setMaximumWidth(line * 8);
    for (QWidget* quiet :
         {static_cast<QWidget*>(m_count), static_cast<QWidget*>(m_message), static_cast<QWidget*>(m_undo)})
        quiet->setFont(quietFont(font()));
}

} // namespace quindle

#include "moc_SnapshotsPage.cpp"
