#include "application/pages/WarningSettingsView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QSignalBlocker>
#include <QSpinBox>

#include "common/Translation.h"
#include "platform/NotificationCenter.h"
#include "platform/Notifier.h"
#include "platform/UserDefaults.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/BoundControls.h"
#include "widgets/controls/PageWheel.h"

namespace quindle {

namespace {

struct LevelCaptions
{
    const char* caption;
    const char* percent; ///< for assistive technologies, as the next
    const char* command;
};

// In the order of the levels.
constexpr std::array<LevelCaptions, warningLevels.size()> captions{{
    {QT_TRANSLATE_NOOP("WarningSettings", "Battery low"),
     QT_TRANSLATE_NOOP("WarningSettings", "Percentage for battery low"),
     QT_TRANSLATE_NOOP("WarningSettings", "Command for battery low")},
    {QT_TRANSLATE_NOOP("WarningSettings", "Very low"),
     QT_TRANSLATE_NOOP("WarningSettings", "Percentage for very low"),
     QT_TRANSLATE_NOOP("WarningSettings", "Command for very low")},
    {QT_TRANSLATE_NOOP("WarningSettings", "Nearly empty"),
     QT_TRANSLATE_NOOP("WarningSettings", "Percentage for nearly empty"),
     QT_TRANSLATE_NOOP("WarningSettings", "Command for nearly empty")},
    {QT_TRANSLATE_NOOP("WarningSettings", "Full"),
     QT_TRANSLATE_NOOP("WarningSettings", "Percentage for full"),
     QT_TRANSLATE_NOOP("WarningSettings", "Command for full")},
    {QT_TRANSLATE_NOOP("WarningSettings", "Charge limit"),
     QT_TRANSLATE_NOOP("WarningSettings", "Percentage for the charge limit"),
     QT_TRANSLATE_NOOP("WarningSettings", "Command for the charge limit")},
}};

struct Choice
{
    WarningsChoice choice;
    const char* caption;
};

constexpr std::array choices{
    Choice{WarningsChoice::Automatic, QT_TRANSLATE_NOOP("WarningSettings", "Unless the desktop warns")},
    Choice{WarningsChoice::On, QT_TRANSLATE_NOOP("WarningSettings", "Always")},
    Choice{WarningsChoice::Off, QT_TRANSLATE_NOOP("WarningSettings", "Never")},
};

QString warnsItself(const QString& desktop)
{
    return translated("WarningSettings", "%1's power manager warns on this desktop.").arg(desktop);
}

} // namespace

WarningSettingsView::WarningSettingsView(UserDefaults& own, DistributedNotificationCenter& center,
                                         PowerManagers* powerManagers, QWidget* parent)
    : PaneView(parent)
    , m_own(own)
    , m_center(center)
    , m_powerManagers(powerManagers)
    , m_choice(new QComboBox(this))
    , m_explanation(new QuietLabel(this))
{
    m_choice->setAccessibleName(tr("Warn"));
    for (const Choice& choice : choices)
        m_choice->addItem(translated("WarningSettings", choice.caption), static_cast<int>(choice.choice));
    leaveWheelToPage(*m_choice);
    m_explanation->setWordWrap(true);
    addRows();
    fitToFont();
    connect(m_choice, &QComboBox::activated, this, [this](int index) {
        setWarningsChoice(m_own, static_cast<WarningsChoice>(m_choice->itemData(index).toInt()));
        announceChange();
    });
    for (const WarningLevel level : warningLevels)
        connectRow(level);
    showLevels();
}

void WarningSettingsView::addRows()
{
    auto* grid = new QGridLayout(this);
    auto* caption = new QLabel(tr("Warnings"), this);
    caption->setBuddy(m_choice);
    grid->addWidget(caption, 0, 0, Qt::AlignRight | Qt::AlignTop);
    auto* choice = new QVBoxLayout;
    choice->addWidget(m_choice, 0, Qt::AlignLeft);
    choice->addWidget(m_explanation);
    grid->addLayout(choice, 0, 1);
    auto* levels = new QGridLayout;
    levels->setColumnStretch(2, 1);
    levels->setVerticalSpacing(fontMetrics().height() / 3);
    levels->setHorizontalSpacing(fontMetrics().height() / 2);
    auto* commands = new QuietLabel(this);
    commands->setText(tr("Command to run then"));
    levels->addWidget(commands, 0, 2);
    for (const WarningLevel level : warningLevels)
        addLevel(level, *levels);
    grid->addLayout(levels, 1, 1);
}

void WarningSettingsView::addLevel(WarningLevel level, QGridLayout& grid)
{
    const LevelCaptions& texts = captions[indexOf(level)];
    Row& row = m_rows[indexOf(level)];
    row = {.isOn = new BoundCheckBox(this), .percent = percentOf(level), .command = new BoundLineEdit(this)};
    row.isOn->setText(translated("WarningSettings", texts.caption));
    row.percent->setAccessibleName(translated("WarningSettings", texts.percent));
    row.command->setAccessibleName(translated("WarningSettings", texts.command));
    row.command->setToolTip(
        tr("A program to run then, with the level, the percentage and the state as arguments"));
    const int line = static_cast<int>(indexOf(level)) + 1;
    grid.addWidget(row.isOn, line, 0);
    grid.addWidget(row.percent, line, 1);
    grid.addWidget(row.command, line, 2);
}

QSpinBox* WarningSettingsView::percentOf(WarningLevel level)
{
    auto* percent = new QSpinBox(this);
    const PercentRange range = percentRange(level);
    percent->setRange(range.least, range.most);
    percent->setSuffix(QStringLiteral("%"));
    percent->setLocale(QLocale::c()); // ASCII digits, as all figures have
    // A number that is being typed is not a percentage yet.
    percent->setKeyboardTracking(false);
    leaveWheelToPage(*percent);
    if (range.least == 0) {
        percent->setSpecialValueText(tr("Auto"));
        percent->setToolTip(tr("Auto: the limit that the computer reports"));
    }
    return percent;
}

void WarningSettingsView::connectRow(WarningLevel level)
{
    const Row& row = m_rows[indexOf(level)];
    connect(row.isOn, &BoundCheckBox::switched, this, [this, level](bool on) {
        setWarningOn(m_own, level, on);
        announceChange();
    });
    connect(row.percent, &QSpinBox::valueChanged, this, [this, level](int percent) {
        setWarningPercent(m_own, level, percent);
        announceChange();
    });
    connect(row.command, &BoundLineEdit::committed, this, [this, level, command = row.command] {
        setWarningCommand(m_own, level, command->text());
        // What is stored now must not count as a change when the field loses the focus.
        command->setBoundText(command->text());
        announceChange();
    });
}

void WarningSettingsView::refresh()
{
    showLevels();
    if (!m_powerManagers) {
        explain({});
        return;
    }
    // The answer may come after the page has been closed.
    m_powerManagers->ask([view = QPointer(this)](const QString& desktop) {
        if (view)
            view->explain(desktop);
    });
}

void WarningSettingsView::showLevels()
{
    m_choice->setCurrentIndex(m_choice->findData(static_cast<int>(warningsChoice(m_own))));
    const WarningSettings settings = warningSettings(m_own);
    for (const WarningLevel level : warningLevels) {
        const Row& row = m_rows[indexOf(level)];
        row.isOn->setShown(settings[level].isOn);
        // What is filled in is stored already; what is being typed is not yet.
        const QSignalBlocker filling(row.percent);
        if (!row.percent->hasFocus())
            row.percent->setValue(settings[level].percent);
        row.command->setBoundText(settings[level].command);
    }
}

void WarningSettingsView::explain(const QString& desktop)
{
    m_explanation->setText(desktop.isEmpty() ? tr("No power manager warns on this desktop.")
                                             : warnsItself(desktop));
}

void WarningSettingsView::announceChange()
{
    m_center.post(QStringLiteral("SettingsChangedNotification"));
}

} // namespace quindle

#include "moc_WarningSettingsView.cpp"
