#pragma once

#include <vector>

#include <QWidget>

#include "facts/Fact.h"

namespace quindle {

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

} // namespace quindle
