#pragma once

#include <memory>

#include "view/FactList.h"

namespace quindle {

class MainInterface;

namespace Ui {
class BatteryView;
}

/// The battery view ("menuView"): charge, state, health, battery, devices, computer. The figures and bars of
/// charge and health have their own places; all other facts are rows of their group. The bars are coloured
/// by the two indicators of the interface, which must outlive it.
class BatteryView : public FactsView
{
    Q_OBJECT

public:
    explicit BatteryView(MainInterface& interface, QWidget* parent = nullptr);
    ~BatteryView() override;

    void setFacts(const std::vector<Fact>& facts) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showCharge(const Fact& charge);
    void showHealth(const Fact& health, const Fact& cycles);
    void fitToFont();
    void alignBaselines();

    std::unique_ptr<Ui::BatteryView> m_ui;
};

} // namespace quindle
