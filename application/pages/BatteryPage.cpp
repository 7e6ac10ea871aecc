#include "application/pages/BatteryPage.h"

#include <algorithm>

#include <QEvent>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "battery/QDBattery.h"
#include "facts/Facts.h"
#include "facts/ShownTexts.h"
#include "facts/ValueTexts.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "view/FactList.h"
#include "view/FactRow.h"
#include "view/ViewMetrics.h"
#include "view/menuIndicator.h"
#include "widgets/PlainLabel.h"

namespace quindle {

namespace {

constexpr double rowScale = 1.1; // to the desktop's font
constexpr double chargeScale = 3.6;
constexpr double healthScale = 2.2;
constexpr int linesForTwoColumns = 44;
constexpr int widestColumn = 30; // lines

/// The words beside the percentage, which has a place of its own.
QString wordsOfHealth(const Fact& health, const QDBattery* battery)
{
    // Without a percentage they are a sentence that says so.
    return health.percent && battery ? modelText(FactPlace::View, knownText(battery->BatteryHealth()))
                                     : health.value;
}

} // namespace

BatteryPage::BatteryPage(MainInterface& interface, QWidget* parent)
    : ScrollPage(parent)
    , m_interface(interface)
    , m_noBattery(new PlainLabel(&content()))
    , m_charge(makeGauge(tr("Charge")))
    , m_stateList(makeList({}))
    , m_health(makeGauge(tr("Health")))
    , m_batteryList(makeList(tr("Battery")))
    , m_batteriesList(makeList(tr("Batteries")))
    , m_devicesList(makeList(tr("Devices")))
    , m_computerList(makeList(tr("Computer")))
    , m_columns(new QHBoxLayout(&content()))
    , m_near(new QVBoxLayout)
    , m_far(new QVBoxLayout)
{
    setObjectName(QStringLiteral("batteryPage"));
    setAccessibleName(tr("Battery"));
    m_noBattery->setText(tr("No battery"));
    m_charge.bar->follow(interface.stateOfChargeProgress());
    m_health.bar->follow(interface.stateOfHealthProgress());
    for (QWidget* part :
         {static_cast<QWidget*>(m_noBattery), m_charge.box, static_cast<QWidget*>(m_stateList), m_health.box})
        m_near->addWidget(part);
    for (FactList* list : {m_batteryList, m_batteriesList, m_devicesList, m_computerList})
        m_far->addWidget(list);
    for (QVBoxLayout* column : {m_near, m_far}) {
        column->addStretch(1);
        m_columns->addLayout(column, 1);
    }
    fitToFont();
}

BatteryPage::Gauge BatteryPage::makeGauge(const QString& caption)
{
    Gauge gauge;
    gauge.box = new QWidget(&content());
    gauge.layout = new QVBoxLayout(gauge.box);
    gauge.layout->setContentsMargins(0, 0, 0, 0);
    gauge.caption = new PlainLabel(gauge.box);
    gauge.caption->setText(caption);
    gauge.caption->setQuiet(true);
    auto* head = new QHBoxLayout;
    gauge.figure = new PlainLabel(gauge.box);
    gauge.sign = new PlainLabel(gauge.box);
    gauge.words = new PlainLabel(gauge.box);
    gauge.sign->setText(QStringLiteral("%"));
    gauge.sign->setQuiet(true);
    gauge.words->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    for (PlainLabel* whole : {gauge.figure, gauge.sign})
        whole->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    head->addWidget(gauge.figure, 0, Qt::AlignBottom);
    head->addWidget(gauge.sign, 0, Qt::AlignBottom);
    head->addWidget(gauge.words, 1, Qt::AlignBottom);
    gauge.bar = new menuIndicator(gauge.box);
    gauge.bar->setAccessibleName(caption);
    gauge.row = new FactRow(gauge.box);
    gauge.row->setQuietText(true);
    connect(gauge.row, &FactRow::clicked, this, &BatteryPage::performClick);
    gauge.layout->addWidget(gauge.caption);
    gauge.layout->addLayout(head);
    gauge.layout->addWidget(gauge.bar);
    gauge.layout->addWidget(gauge.row);
    return gauge;
}

FactList* BatteryPage::makeList(const QString& heading)
{
    auto* list = new FactList(&content());
    list->setHeading(heading);
    connect(list, &FactList::clicked, this, &BatteryPage::performClick);
    return list;
}

void BatteryPage::performClick(FactClick click)
{
    m_interface.performClick(click);
    refresh();
}

void BatteryPage::refresh()
{
    if (isVisible())
        showAll(factsFor(FactPlace::View, m_interface.factSources()));
}

void BatteryPage::showAll(const std::vector<Fact>& facts)
{
    const QDMac* mac = m_interface.macObjectController().content();
    const QDBattery* battery = mac ? mac->Battery() : nullptr;
    m_noBattery->setVisible(!battery);
    for (QWidget* part : {m_charge.box, m_health.box})
        part->setVisible(battery);
    const Fact& charge = factWithId(facts, FactId::Charge);
    const Fact& health = factWithId(facts, FactId::Health);
    const Fact& cycles = factWithId(facts, FactId::Cycles);
    show(m_charge, charge, factWithId(facts, FactId::State).value, {},
         charge.detail.isEmpty() ? missingValueText() : charge.detail);
    show(m_health, health, wordsOfHealth(health, battery), cycles.value, health.detail);
    m_charge.row->setExplanation({});
    m_health.row->setExplanation(
        joined(cycles.shown ? cycles.toolTip : QString(), QStringLiteral("\n"), health.toolTip));
    m_stateList->setFacts(facts, FactGroup::State);
    m_batteryList->setFacts(facts, FactGroup::Battery);
    m_batteriesList->setFacts(facts, FactGroup::Batteries);
    m_devicesList->setFacts(facts, FactGroup::Devices);
    m_computerList->setFacts(facts, FactGroup::Computer);
}

void BatteryPage::show(const Gauge& gauge, const Fact& fact, const QString& words, const QString& before,
                       const QString& after)
{
    gauge.figure->setText(fact.percent ? figureText(*fact.percent) : missingValueText());
    gauge.sign->setVisible(fact.percent.has_value());
    gauge.words->setText(words);
    gauge.bar->setPercent(fact.percent.value_or(0));
    // An empty bar would say 0 %.
    gauge.bar->setVisible(fact.percent.has_value());
    gauge.row->setTexts(before, after, fact.click);
    gauge.row->setVisible(!before.isEmpty() || !after.isEmpty());
}

void BatteryPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    ScrollPage::changeEvent(event);
}

void BatteryPage::resizeEvent(QResizeEvent* event)
{
    ScrollPage::resizeEvent(event);
    arrange();
}

void BatteryPage::showEvent(QShowEvent* event)
{
    ScrollPage::showEvent(event);
    refresh();
}

void BatteryPage::arrange()
{
    const int line = fontMetrics().height();
    const bool isWide = viewport()->width() >= line * linesForTwoColumns;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_columns->setSpacing(isWide ? line * 3 : line);
    // Captions and values that are far apart are hard to read as one line.
    const int margin = line * 3 / 2;
    const int columns = isWide ? 2 : 1;
    const int widest = columns * widestColumn * line + (columns - 1) * m_columns->spacing();
    const int spare = std::max(0, viewport()->width() - 2 * margin - widest);
    m_columns->setContentsMargins(margin, margin, margin + spare, margin);
}

void BatteryPage::fitToFont()
{
    const int line = fontMetrics().height();
    QFont rows = font();
    rows.setPointSizeF(QFontInfo(font()).pointSizeF() * rowScale);
    content().setFont(rows);
    m_noBattery->setFont(ViewMetrics(content()).medium);
    for (QVBoxLayout* column : {m_near, m_far})
        column->setSpacing(line * 5 / 4);
    for (const Gauge* gauge : {&m_charge, &m_health})
        gauge->layout->setSpacing(line / 3);
    fitFigure(m_charge, chargeScale);
    fitFigure(m_health, healthScale);
    arrange();
}

// The big figure, its sign and the words share one baseline.
void BatteryPage::fitFigure(const Gauge& gauge, double factor) const
{
    const ViewMetrics metrics(content());
    QFont large = content().font();
    large.setPointSizeF(QFontInfo(large).pointSizeF() * factor);
    gauge.figure->setFont(large);
    gauge.sign->setFont(metrics.medium);
    gauge.caption->setFont(metrics.heading);
    gauge.row->setFont(metrics.small);
    const int deepest = gauge.figure->fontMetrics().descent();
    for (PlainLabel* label : {gauge.sign, gauge.words})
        label->setContentsMargins(0, 0, 0, deepest - label->fontMetrics().descent());
}

} // namespace quindle

#include "moc_BatteryPage.cpp"
