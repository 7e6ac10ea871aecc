#include "view/FactList.h"

#include <QEvent>
#include <QVBoxLayout>

#include "view/FactRow.h"
#include "view/ViewMetrics.h"
#include "widgets/PlainLabel.h"

namespace quindle {

FactList::FactList(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_heading(new PlainLabel(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_heading);
    m_heading->setQuiet(true);
    m_heading->hide();
    hide();
    fitToFont();
}

QString FactList::heading() const
{
    return m_heading->text();
}

void FactList::setHeading(const QString& heading)
{
    m_heading->setText(heading);
    m_heading->setVisible(!heading.isEmpty());
}

void FactList::setFacts(const std::vector<Fact>& facts, FactGroup group)
{
    std::size_t used = 0;
    bool anyShown = false;
    for (const Fact& fact : facts) {
        if (fact.group != group)
            continue;
        row(used++).setFact(fact);
        anyShown = anyShown || fact.shown;
    }
    // Rows are hidden and not deleted: one of them may have the keyboard, or be the sender of this update.
    for (; used < m_rows.size(); ++used)
        m_rows[used]->hide();
    setVisible(anyShown);
    updateGeometry(); // at once, so that the window can have its size before it is drawn
}

FactRow& FactList::row(std::size_t index)
{
    if (index == m_rows.size()) {
        m_rows.push_back(new FactRow(this));
        m_layout->addWidget(m_rows.back());
        connect(m_rows.back(), &FactRow::clicked, this, &FactList::clicked);
    }
    return *m_rows[index];
}

void FactList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    QWidget::changeEvent(event);
}

void FactList::fitToFont()
{
    const ViewMetrics metrics(*this);
    m_layout->setSpacing(metrics.rowGap);
    m_heading->setFont(metrics.heading);
}

} // namespace quindle

#include "moc_FactList.cpp"
