#include "view/FactRow.h"

#include <algorithm>

#include <QEvent>
#include <QStyle>

#include "facts/Facts.h"
#include "facts/ValueTexts.h"
#include "widgets/PlainLabel.h"
#include "widgets/PlainText.h"
#include "widgets/controls/SwitchField.h"

namespace quindle {

namespace {

QString clickHint()
{
    return FactRow::tr("Click to switch the unit");
}

} // namespace

FactRow::FactRow(QWidget* parent)
    : QWidget(parent)
    , m_caption(new PlainLabel(this))
    , m_value(new PlainLabel(this))
{
    m_caption->setQuiet(true);
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FactRow::setFact(const Fact& fact)
{
    setVisible(fact.shown);
    // Most facts stay the same from one refresh to the next, and setting texts asks for a new layout.
    if (fact == m_fact)
        return;
    m_fact = fact;
    setQuietText(fact.isQuiet);
    setClickable(fact.click != FactClick::Nothing);
    setExplanation(fact.toolTip);
    showTexts(fact.caption, factText(fact, FactPlace::View));
}

void FactRow::setTexts(const QString& caption, const QString& text, FactClick click)
{
    m_fact.click = click;
    setClickable(click != FactClick::Nothing);
    showTexts(caption, text);
}

void FactRow::showTexts(const QString& caption, const QString& text)
{
    if (caption == this->caption() && text == this->text())
        return;
    m_caption->setText(caption);
    m_value->setText(text);
    if (m_switchField)
        m_switchField->setLabel(text);
    updateAccessibleNames();
    arrange();
}

QString FactRow::caption() const
{
    return m_caption->text();
}

QString FactRow::text() const
{
    return m_value->text();
}

bool FactRow::hasQuietCaption() const
{
    return m_caption->isQuiet();
}

void FactRow::setQuietCaption(bool quiet)
{
    m_caption->setQuiet(quiet);
}

bool FactRow::hasQuietText() const
{
    return m_value->isQuiet();
}

void FactRow::setQuietText(bool quiet)
{
    m_value->setQuiet(quiet);
    if (m_switchField)
        m_switchField->setQuiet(quiet);
}

void FactRow::setClickable(bool clickable)
{
    if (clickable == (m_switchField != nullptr))
        return;
    if (clickable) {
        m_switchField = new SwitchField(this);
        m_switchField->setLabel(text());
        m_switchField->setQuiet(hasQuietText());
        connect(m_switchField, &SwitchField::clicked, this, [this] { Q_EMIT clicked(m_fact.click); });
    } else {
        delete m_switchField;
        m_switchField = nullptr;
    }
    m_value->setVisible(!clickable);
    // A child that is made after its parent was shown stays hidden.
    if (m_switchField)
        m_switchField->show();
    updateAccessibleNames();
    arrange();
}

void FactRow::setExplanation(const QString& text)
{
    setToolTip(literalToolTip(text));
    if (!m_switchField)
        return;
    const QString whole = joined(text, QStringLiteral("\n"), clickHint());
    m_switchField->setToolTip(literalToolTip(whole));
    m_switchField->setAccessibleDescription(whole); // which would be the tool tip with its markup
}

QSize FactRow::sizeHint() const
{
    const int width = m_caption->sizeHint().width() + valueWidget()->sizeHint().width();
    return {width + fontMetrics().height(), m_caption->sizeHint().height()};
}

QSize FactRow::minimumSizeHint() const
{
    return {0, m_caption->sizeHint().height()};
}

void FactRow::resizeEvent(QResizeEvent*)
{
    arrange();
}

void FactRow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        arrange();
    }
    QWidget::changeEvent(event);
}

QWidget* FactRow::valueWidget() const
{
    return m_switchField ? static_cast<QWidget*>(m_switchField) : m_value;
}

void FactRow::arrange()
{
    const int gap = fontMetrics().height();
    const int valueWanted = valueWidget()->sizeHint().width();
    // The caption keeps at most half the row, since the value is what a person came for.
    const int captionKept = std::min(m_caption->sizeHint().width(), (width() - gap) / 2);
    const int valueWidth = std::clamp(valueWanted, 0, std::max(0, width() - captionKept - gap));
    const int valueSpace = valueWanted > 0 && !text().isEmpty() ? valueWidth + gap : 0;
    const QRect caption(0, 0, std::max(0, width() - valueSpace), height());
    const QRect value(width() - valueWidth, 0, valueWidth, height());
    m_caption->setGeometry(QStyle::visualRect(layoutDirection(), rect(), caption));
    valueWidget()->setGeometry(QStyle::visualRect(layoutDirection(), rect(), value));
}

void FactRow::updateAccessibleNames()
{
    // Read aloud, a value without its caption means nothing.
    const QString whole = (caption() + u' ' + text()).trimmed();
    setAccessibleName(whole);
    if (m_switchField)
        m_switchField->setAccessibleName(whole);
}

} // namespace quindle

#include "moc_FactRow.cpp"
