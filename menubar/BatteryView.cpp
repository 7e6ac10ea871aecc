#include "menubar/BatteryView.h"

#include <QEvent>

#include "menubar/MainInterface.h"
#include "menubar/ViewMetrics.h"
#include "ui_BatteryView.h"

namespace quindle {

BatteryView::BatteryView(MainInterface& interface, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BatteryView>())
{
    m_ui->setupUi(this);
    m_ui->headerGroup->setStretchFactor(m_ui->stateLabel, 1);
    for (PlainLabel* whole : {m_ui->figureLabel, m_ui->percentLabel})
        whole->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_ui->stateOfChargeProgress->follow(interface.stateOfChargeProgress());
    m_ui->stateOfHealthProgress->follow(interface.stateOfHealthProgress());
    fitToFont();
}

BatteryView::~BatteryView() = default;

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
    m_ui->stateGroup->setSpacing(metrics.rowGap);
    m_ui->healthGroup->setSpacing(metrics.rowGap * 2);
    m_ui->batteryGroup->setSpacing(metrics.rowGap);

    m_ui->figureLabel->setFont(metrics.large);
    m_ui->percentLabel->setFont(metrics.medium);
    m_ui->chargeRow->setFont(metrics.small);
    m_ui->cyclesRow->setFont(metrics.small);
    m_ui->batteryHeading->setFont(metrics.heading);
    alignBaselines();
}

// The big figure, its sign and the state stand on one line of writing.
void BatteryView::alignBaselines()
{
    const int deepest = m_ui->figureLabel->fontMetrics().descent();
    for (PlainLabel* label : {m_ui->percentLabel, m_ui->stateLabel}) {
        label->setContentsMargins(0, 0, 0, deepest - label->fontMetrics().descent());
        m_ui->headerGroup->setAlignment(label, Qt::AlignBottom);
    }
}

} // namespace quindle
