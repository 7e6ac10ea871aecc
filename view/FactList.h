#pragma once

#include <vector>

#include <QWidget>

#include "facts/Fact.h"

class QVBoxLayout;

namespace quindle {

class FactRow;
class PlainLabel;

/// A view of facts: of battery and computer, or of a computer without a battery.
class FactsView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows the facts of the place View.
    virtual void setFacts(const std::vector<Fact>& facts) = 0;

Q_SIGNALS:
    void clicked(quindle::FactClick click);
};

/// Facts of one group, each in a row, under a heading. It is hidden while none of them is shown.
class FactList : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString heading READ heading WRITE setHeading)

public:
    explicit FactList(QWidget* parent = nullptr);

    /// Empty for none.
    QString heading() const;
    void setHeading(const QString& heading);

    /// Shows those facts that belong to the group. Rows stay where the facts are the same, and keep the
    /// keyboard.
    void setFacts(const std::vector<Fact>& facts, FactGroup group);

Q_SIGNALS:
    void clicked(quindle::FactClick click);

protected:
    void changeEvent(QEvent* event) override;

private:
    FactRow& row(std::size_t index);
    void fitToFont();

    QVBoxLayout* m_layout;
    PlainLabel* m_heading;
    std::vector<FactRow*> m_rows;
};

} // namespace quindle
