#pragma once

#include <memory>

#include <QWidget>

namespace quindle {

namespace Ui {
class NoBatteryView;
}

/// The view ("noBatteryView") of a computer without a battery. A KeyPathBinder fills it.
class NoBatteryView : public QWidget
{
    Q_OBJECT

public:
    explicit NoBatteryView(QWidget* parent = nullptr);
    ~NoBatteryView() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();

    std::unique_ptr<Ui::NoBatteryView> m_ui;
};

} // namespace quindle
