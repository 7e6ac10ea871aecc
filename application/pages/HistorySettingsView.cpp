#include "application/pages/HistorySettingsView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "common/Translation.h"
#include "facts/ValueTexts.h"
#include "platform/NotificationCenter.h"
#include "settings/HistorySettings.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/BoundControls.h"
#include "widgets/controls/PageWheel.h"

namespace quindle {

namespace {

struct Span
{
    qint64 days;
    const char* caption;
};

constexpr Span offeredSpans[] = {
    {0, QT_TRANSLATE_NOOP("HistorySettings", "For ever")},
    {3650, QT_TRANSLATE_NOOP("HistorySettings", "10 years")},
    {1825, QT_TRANSLATE_NOOP("HistorySettings", "5 years")},
    {730, QT_TRANSLATE_NOOP("HistorySettings", "2 years")},
    {365, QT_TRANSLATE_NOOP("HistorySettings", "1 year")},
    {90, QT_TRANSLATE_NOOP("HistorySettings", "90 days")},
    {30, QT_TRANSLATE_NOOP("HistorySettings", "30 days")},
};

} // namespace

HistorySettingsView::HistorySettingsView(UserDefaults& own, DistributedNotificationCenter& center,
                                         std::function<void()> deleteAll, QWidget* parent)
    : PaneView(parent)
    , m_own(own)
    , m_center(center)
    , m_deleteAll(std::move(deleteAll))
    , m_record(new BoundCheckBox(this))
    , m_days(new QComboBox(this))
    , m_message(new QuietLabel(this))
{
    m_record->setText(tr("Record charge, po&wer and a daily snapshot"));
    m_record->setAccessibleName(tr("Record charge, power and a daily snapshot"));
    m_days->setAccessibleName(tr("Keep charge and power"));
    for (const Span& span : offeredSpans)
        m_days->addItem(translated("HistorySettings", span.caption), span.days);
    leaveWheelToPage(*m_days);
    addRows();
    fitToFont();
    connect(m_record, &BoundCheckBox::switched, this, [this](bool on) {
        setRecordsHistory(m_own, on);
        announceChange();
    });
    connect(m_days, &QComboBox::activated, this, [this](int index) {
        setHistoryDays(m_own, m_days->itemData(index).toLongLong());
        announceChange();
    });
    refresh();
}

void HistorySettingsView::addRows()
{
    auto* grid = new QGridLayout(this);
    const auto caption = [&](int row, const QString& text, QWidget* control) {
        auto* label = new QLabel(text, this);
        label->setBuddy(control);
        grid->addWidget(label, row, 0, Qt::AlignRight | Qt::AlignTop);
    };
    caption(0, tr("History"), m_record);
    auto* recorded = new QVBoxLayout;
    recorded->addWidget(m_record);
    auto* explanation = new QuietLabel(this);
    explanation->setText(tr("It stays on this computer."));
    recorded->addWidget(explanation);
    grid->addLayout(recorded, 0, 1);
    caption(1, tr("&Keep"), m_days);
    grid->addWidget(m_days, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    auto* deleteButton = new QPushButton(tr("&Delete History..."), this);
    connect(deleteButton, &QPushButton::clicked, this, &HistorySettingsView::askToDelete);
    grid->addWidget(deleteButton, 2, 1, Qt::AlignLeft | Qt::AlignTop);
    m_message->setObjectName(QStringLiteral("historyMessage"));
    m_message->setWordWrap(true);
    m_message->hide();
    grid->addWidget(m_message, 3, 1);
}

void HistorySettingsView::refresh()
{
    m_record->setShown(recordsHistory(m_own));
    showDays(historyDays(m_own));
}

void HistorySettingsView::showDays(qint64 days)
{
    int index = m_days->findData(days);
    // Any number may be stored by hand.
    if (index < 0) {
        m_days->addItem(translated("HistorySettings", "%1 days", nullptr, days).arg(days), days);
        index = m_days->count() - 1;
    }
    m_days->setCurrentIndex(index);
}

void HistorySettingsView::showMessage(const QString& line)
{
    // Snapshots and samples are deleted independently, and either may fail.
    m_message->setText(joined(m_message->text(), QStringLiteral("\n"), line));
    m_message->show();
}

void HistorySettingsView::clearMessage()
{
    m_message->clear();
    m_message->hide();
}

void HistorySettingsView::announceChange()
{
    m_center.post(QStringLiteral("SettingsChangedNotification"));
}

void HistorySettingsView::askToDelete()
{
    auto* question = new QMessageBox(QMessageBox::Warning, tr("Delete History"),
                                     tr("Delete all snapshots, and all recorded charge and power?"),
                                     QMessageBox::Cancel, this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setInformativeText(tr("This cannot be undone."));
    const auto* confirm = question->addButton(tr("&Delete"), QMessageBox::DestructiveRole);
    question->setDefaultButton(QMessageBox::Cancel);
    // As all other buttons are; from right to left the toolkit draws a picture over the word's place.
    question->button(QMessageBox::Cancel)->setIcon({});
    connect(question, &QMessageBox::buttonClicked, this, [this, confirm](const QAbstractButton* chosen) {
        if (chosen != confirm)
            return;
        clearMessage();
        m_deleteAll();
    });
    question->open();
}

} // namespace quindle

#include "moc_HistorySettingsView.cpp"
