#include "view/BatteryView.h"

#include <QEvent>

#include "facts/Facts.h"
#include "facts/ValueTexts.h"
#include "menubar/MainInterface.h"
#include "ui_BatteryView.h"
#include "view/ViewMetrics.h"

namespace quindle {

BatteryView::BatteryView(MainInterface& interface, QWidget* parent)
    : FactsView(parent)
    , m_ui(std::make_unique<Ui::BatteryView>())
{
    m_ui->setupUi(this);
    m_ui->headerGroup->setStretchFactor(m_ui->stateLabel, 1);
    // The figure is never cut; the state beside it gives way.
    for (PlainLabel* whole : {m_ui->figureLabel, m_ui->percentLabel})
        whole->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_ui->stateOfChargeProgress->follow(interface.stateOfChargeProgress());
    m_ui->stateOfHealthProgress->follow(interface.stateOfHealthProgress());
    for (const FactRow* row : {m_ui->chargeRow, m_ui->cyclesRow})
        connect(row, &FactRow::clicked, this, &FactsView::clicked);
    for (const FactList* list :
         {m_ui->stateList, m_ui->batteryList, m_ui->batteriesList, m_ui->devicesList, m_ui->computerList})
        connect(list, &FactList::clicked, this, &FactsView::clicked);
    fitToFont();
}

BatteryView::~BatteryView() = default;

void BatteryView::setFacts(const std::vector<Fact>& facts)
{
    showCharge(factWithId(facts, FactId::Charge));
    m_ui->stateLabel->setText(factWithId(facts, FactId::State).value);
    m_ui->stateList->setFacts(facts, FactGroup::State);
    showHealth(factWithId(facts, FactId::Health), factWithId(facts, FactId::Cycles));
    m_ui->batteryList->setFacts(facts, FactGroup::Battery);
    m_ui->batteriesList->setFacts(facts, FactGroup::Batteries);
    m_ui->devicesList->setFacts(facts, FactGroup::Devices);
    m_ui->computerList->setFacts(facts, FactGroup::Computer);
}

void BatteryView::showCharge(const Fact& charge)
{
    m_ui->figureLabel->setText(charge.percent ? figureText(*charge.percent) : missingValueText());
    m_ui->stateOfChargeProgress->setPercent(charge.percent.value_or(0));
    m_ui->chargeRow->setTexts(charge.caption, charge.detail.isEmpty() ? missingValueText() : charge.detail,
                              charge.click);
    m_ui->chargeRow->setExplanation({});
}

void BatteryView::showHealth(const Fact& health, const Fact& cycles)
{
    m_ui->healthRow->setTexts(health.caption, health.value);
    m_ui->stateOfHealthProgress->setPercent(health.percent.value_or(0));
    // An empty bar would say 0 %.
    m_ui->stateOfHealthProgress->setVisible(health.percent.has_value());
    m_ui->cyclesRow->setTexts(cycles.value, health.detail, health.click);
    m_ui->cyclesRow->setVisible(!cycles.value.isEmpty() || !health.detail.isEmpty());
    m_ui->cyclesRow->setExplanation(
        joined(cycles.shown ? cycles.toolTip : QString(), QStringLiteral("\n"), health.toolTip));
}

void BatteryView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void BatteryView::fitToFont()
{
    const ViewMetrics metrics(*this);
    setFixedWidth(metrics.width);
    m_ui->groups->setContentsMargins(metrics.margin, metrics.margin, metrics.margin, metrics.margin);
    m_ui->groups->setSpacing(metrics.groupGap);
    m_ui->headerGroup->setSpacing(metrics.rowGap);
    m_ui->chargeGroup->setSpacing(metrics.rowGap * 2);
    m_ui->healthGroup->setSpacing(metrics.rowGap * 2);

    m_ui->figureLabel->setFont(metrics.large);
    m_ui->percentLabel->setFont(metrics.medium);
    m_ui->chargeRow->setFont(metrics.small);
    m_ui->cyclesRow->setFont(metrics.small);
    alignBaselines();
}

// The big figure, its sign and the state share one baseline.
void BatteryView::alignBaselines()
{
    const int deepest = m_ui->figureLabel->fontMetrics().descent();
    for (PlainLabel* label : {m_ui->percentLabel, m_ui->stateLabel}) {
        label->setContentsMargins(0, 0, 0, deepest - label->fontMetrics().descent());
        m_ui->headerGroup->setAlignment(label, Qt::AlignBottom);
    }
}

} // namespace quindle

#include "moc_BatteryView.cpp"
