#include "preferences/panes/UpdateView.h"

#include <QEvent>

#include "ui_UpdatePreferencesController.h"

namespace quindle {

namespace {

constexpr int widthInLines = 31;
constexpr int captionLines = 11; // the captions' column, right-aligned beside the values
constexpr double margin = 1.8;   // of a line, as are the gaps
constexpr double columnGap = 1.0;
constexpr double rowGap = 1.1;

} // namespace

UpdateView::UpdateView(const QString& version, const QString& updateSource)
    : m_ui(std::make_unique<Ui::UpdatePreferencesController>())
{
    m_ui->setupUi(this);
    m_ui->versionLabel->setText(version);
    m_ui->updateSourceLabel->setText(updateSource);
    fitToFont();
}

UpdateView::~UpdateView() = default;

void UpdateView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void UpdateView::fitToFont()
{
    const int line = fontMetrics().height();
    const int edge = qRound(line * margin);
    setFixedWidth(line * widthInLines);
    m_ui->rows->setContentsMargins(edge, edge, edge, edge);
    m_ui->rows->setHorizontalSpacing(qRound(line * columnGap));
    m_ui->rows->setVerticalSpacing(qRound(line * rowGap));
    m_ui->rows->setColumnMinimumWidth(0, line * captionLines - edge);
}

} // namespace quindle
