#pragma once

#include <memory>

#include <QWidget>

namespace quindle {

class MainInterface;

namespace Ui {
class BatteryView;
}

/// The battery view ("menuView"): charge, state, health, battery, computer. A KeyPathBinder fills it; the
/// bars are coloured by the two indicators of the interface, which must outlive it.
class BatteryView : public QWidget
{
    Q_OBJECT

public:
    explicit BatteryView(MainInterface& interface, QWidget* parent = nullptr);
    ~BatteryView() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();
    void alignBaselines();

    std::unique_ptr<Ui::BatteryView> m_ui;
};

} // namespace quindle
