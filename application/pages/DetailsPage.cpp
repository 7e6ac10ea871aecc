#include "application/pages/DetailsPage.h"

#include <QCheckBox>
#include <QClipboard>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "battery/QDBattery.h"
#include "common/Paths.h"
#include "inspect/Capture.h"
#include "inspect/CaptureFile.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/Platform.h"
#include "widgets/FileDialog.h"
#include "widgets/IsolatedCells.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

QVariantMap machineKeys(const Platform& platform, bool withSerials)
{
    const QVariantMap keys = capturedKeys(platform);
    // As a Mac's on every system: a recorded computer may be a Mac.
    return withSerials ? keys : withoutIdentity(keys, CapturedRegistry::OfAMac);
}

void setText(QTreeWidgetItem& item, int column, const QString& text)
{
    // Setting what is there already would draw the row again.
    if (item.text(column) != text)
        item.setText(column, text);
}

} // namespace

DetailsPage::DetailsPage(const Platform& platform, const QDMac& mac, Bundle& helperBundle,
                         IORegistry* registryAsItIs, QWidget* parent)
    : QWidget(parent)
    , m_platform(platform)
    , m_mac(mac)
    , m_helperBundle(helperBundle)
    , m_registryAsItIs(registryAsItIs)
    , m_search(new QLineEdit(this))
    , m_rows(new QTreeWidget(this))
    , m_nothing(new QLabel(tr("Nothing found"), this))
    , m_message(new QuietLabel(this))
    , m_withSerials(new QCheckBox(tr("With serial &numbers"), this))
{
    setObjectName(QStringLiteral("detailsPage"));
    setAccessibleName(tr("Details"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search details"));
    m_search->setClearButtonEnabled(true);
    m_rows->setAccessibleName(tr("Details"));
    m_rows->setColumnCount(2);
    m_rows->setHeaderHidden(true);
    m_rows->setRootIsDecorated(false);
    m_rows->setItemsExpandable(false); // nothing would show that a section is closed
    m_rows->setIndentation(0);
    m_rows->setAlternatingRowColors(false);
    m_rows->setFrameShape(QFrame::NoFrame);
    m_rows->setTextElideMode(Qt::ElideMiddle);
    m_rows->setItemDelegate(new IsolatedCells(m_rows));
    m_nothing->setAlignment(Qt::AlignCenter);
    auto* copyButton = new QPushButton(tr("&Copy as Text"), this);
    auto* saveButton = new QPushButton(tr("&Save as Machine File..."), this);
    saveButton->setToolTip(tr("A file that the program can be run on in place of this computer, "
                              "for reports of defects"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_rows, 1);
    layout->addWidget(m_nothing, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_message, 1);
    buttons->addWidget(m_withSerials);
    buttons->addWidget(copyButton);
    buttons->addWidget(saveButton);
    layout->addLayout(buttons);
    connect(m_search, &QLineEdit::textChanged, this, &DetailsPage::search);
    connect(copyButton, &QPushButton::clicked, this, &DetailsPage::copy);
    connect(saveButton, &QPushButton::clicked, this, &DetailsPage::askForFile);
    auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_search, [this] { m_search->setFocus(); });
    m_search->installEventFilter(this);
    fitToFont();
}

void DetailsPage::refresh()
{
    if (!isVisible())
        return;
    const QDBattery* battery = m_mac.Battery();
    m_sections = detailSections({.sourceRows = battery ? battery->raw() : QVariantList(),
                                 .registry = capturedRegistry(m_platform.registry)});
    showFound();
}

/// Escape clears what is searched for; with nothing to clear it is left to the window.
bool DetailsPage::eventFilter(QObject* watched, QEvent* event)
{
    const bool isCancel =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
    if (watched != m_search || !isCancel || m_search->text().isEmpty())
        return QWidget::eventFilter(watched, event);
    m_search->clear();
    return true;
}

void DetailsPage::search()
{
    // "Copied" and "Saved" are about what was found before.
    m_message->clear();
    showFound();
}

// Items of unchanged rows stay, and with them the selection and the scroll position.
void DetailsPage::showFound()
{
    const std::vector<DetailSection> found = foundDetails(m_sections, m_search->text());
    while (m_rows->topLevelItemCount() > static_cast<int>(found.size()))
        delete m_rows->takeTopLevelItem(m_rows->topLevelItemCount() - 1);
    for (std::size_t index = 0; index < found.size(); ++index)
        showSection(static_cast<int>(index), found[index]);
    m_rows->setVisible(!found.empty());
    m_nothing->setVisible(found.empty());
}

void DetailsPage::showSection(int index, const DetailSection& section)
{
    if (index == m_rows->topLevelItemCount()) {
        auto* item = new QTreeWidgetItem(m_rows);
        // A heading cannot be selected, as there is nothing to copy.
        item->setFlags(Qt::ItemIsEnabled);
        item->setFirstColumnSpanned(true);
        item->setExpanded(true);
        QFont heading = font();
        heading.setBold(true);
        item->setFont(0, heading);
        item->setTextAlignment(0, Qt::AlignLeft | Qt::AlignBottom);
        item->setSizeHint(0, {0, fontMetrics().height() * (index == 0 ? 3 : 5) / 2});
    }
    QTreeWidgetItem& top = *m_rows->topLevelItem(index);
    setText(top, 0, section.title);
    while (top.childCount() > static_cast<int>(section.rows.size()))
        delete top.takeChild(top.childCount() - 1);
    for (int row = 0; row < static_cast<int>(section.rows.size()); ++row) {
        if (row == top.childCount())
            (new QTreeWidgetItem(&top))->setSizeHint(0, {0, fontMetrics().height() * 7 / 5});
        const DetailRow& detail = section.rows[static_cast<std::size_t>(row)];
        setText(*top.child(row), 0, detail.name);
        setText(*top.child(row), 1, detail.value);
        // Long values are cut in the middle; unescaped they could be taken for markup.
        top.child(row)->setToolTip(1, detail.value.toHtmlEscaped());
    }
}

void DetailsPage::copy()
{
    QGuiApplication::clipboard()->setText(detailsText(foundDetails(m_sections, m_search->text())));
    m_message->setText(tr("Copied"));
}

void DetailsPage::askForFile()
{
    QFileDialog* dialog = makeFileDialog(this, tr("Save as Machine File"), {tr("Machine files (*.plist)")});
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("plist"));
    dialog->selectFile(QStringLiteral("machine.plist"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& path) { saveTo(pathText(QFile::encodeName(path))); });
    dialog->open();
}

void DetailsPage::saveTo(const QString& path)
{
    // A machine file is played by the helper's programs, so it names their bundle.
    const Platform captured = m_platform.with({.registry = m_registryAsItIs, .bundle = &m_helperBundle});
    const QString failure = writeMachineFile(path, machineKeys(captured, m_withSerials->isChecked()));
    m_message->setText(failure.isEmpty() ? tr("Saved") : path + QStringLiteral(": ") + failure);
}

void DetailsPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void DetailsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void DetailsPage::fitToFont()
{
    const int line = fontMetrics().height();
    layout()->setContentsMargins(line * 3 / 2, line * 3 / 2, line * 3 / 2, line);
    layout()->setSpacing(line * 3 / 4);
    m_rows->setColumnWidth(0, line * 15);
    m_message->setFont(quietFont(font()));
}

} // namespace quindle

#include "moc_DetailsPage.cpp"
