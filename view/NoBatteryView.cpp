#include "view/NoBatteryView.h"

#include <QEvent>

#include "ui_NoBatteryView.h"
#include "view/ViewMetrics.h"

namespace quindle {

NoBatteryView::NoBatteryView(QWidget* parent)
    : FactsView(parent)
    , m_ui(std::make_unique<Ui::NoBatteryView>())
{
    m_ui->setupUi(this);
    for (const FactList* list : {m_ui->devicesList, m_ui->computerList})
        connect(list, &FactList::clicked, this, &FactsView::clicked);
    fitToFont();
}

NoBatteryView::~NoBatteryView() = default;

void NoBatteryView::setFacts(const std::vector<Fact>& facts)
{
    m_ui->devicesList->setFacts(facts, FactGroup::Devices);
    m_ui->computerList->setFacts(facts, FactGroup::Computer);
}

void NoBatteryView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void NoBatteryView::fitToFont()
{
    const ViewMetrics metrics(*this);
    setFixedWidth(metrics.width);
    m_ui->groups->setContentsMargins(metrics.margin, metrics.margin, metrics.margin, metrics.margin);
    m_ui->groups->setSpacing(metrics.groupGap);
    m_ui->noBatteryLabel->setFont(metrics.medium);
}

} // namespace quindle

#include "moc_NoBatteryView.cpp"
