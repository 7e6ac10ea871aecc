#include "menubar/ComputerGroup.h"

#include <QEvent>

#include "menubar/ViewMetrics.h"
#include "ui_ComputerGroup.h"

namespace quindle {

ComputerGroup::ComputerGroup(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ComputerGroup>())
{
    m_ui->setupUi(this);
    m_ui->groups->setContentsMargins(0, 0, 0, 0);
    fitToFont();
}

ComputerGroup::~ComputerGroup() = default;

void ComputerGroup::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void ComputerGroup::fitToFont()
{
    const ViewMetrics metrics(*this);
    m_ui->groups->setSpacing(metrics.rowGap);
    m_ui->computerHeading->setFont(metrics.heading);
}

} // namespace quindle
