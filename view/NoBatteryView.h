#pragma once

#include <memory>

#include "view/FactList.h"

namespace quindle {

namespace Ui {
class NoBatteryView;
}

/// The view ("noBatteryView") of a computer without a battery: its devices and itself.
class NoBatteryView : public FactsView
{
    Q_OBJECT

public:
    explicit NoBatteryView(QWidget* parent = nullptr);
    ~NoBatteryView() override;

    void setFacts(const std::vector<Fact>& facts) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();

    std::unique_ptr<Ui::NoBatteryView> m_ui;
};

} // namespace quindle
