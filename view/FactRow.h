#pragma once

#include <QWidget>

#include "facts/Fact.h"

namespace quindle {

class PlainLabel;
class SwitchField;

/// One line of the battery view: a quiet caption at its near edge and a value at its far edge. The value is
/// cut last.
class FactRow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool quietCaption READ hasQuietCaption WRITE setQuietCaption)
    Q_PROPERTY(bool quietText READ hasQuietText WRITE setQuietText)

public:
    explicit FactRow(QWidget* parent = nullptr);

    /// Shows a fact with its detail, its tool tip and the way to click it; hides the row where it is not
    /// shown.
    void setFact(const Fact& fact);

    /// The fact shown last.
    const Fact& fact() const { return m_fact; }

    /// Shows these texts alone; a click on the second one is reported as `click`.
    void setTexts(const QString& caption, const QString& text, FactClick click = FactClick::Nothing);

    /// What tool tip and assistive technologies say of the row, and of the way to click it.
    void setExplanation(const QString& text);

    QString caption() const;
    QString text() const;

    bool hasQuietCaption() const;
    void setQuietCaption(bool quiet);

    bool hasQuietText() const;
    void setQuietText(bool quiet);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The value was clicked.
    void clicked(quindle::FactClick click);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setClickable(bool clickable);
    void showTexts(const QString& caption, const QString& text);
    QWidget* valueWidget() const;
    void arrange();
    void updateAccessibleNames();

    PlainLabel* m_caption;
    PlainLabel* m_value;
    SwitchField* m_switchField = nullptr;
    Fact m_fact;
};

} // namespace quindle
