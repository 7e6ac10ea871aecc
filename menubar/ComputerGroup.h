#pragma once

#include <memory>

#include <QWidget>

namespace quindle {

namespace Ui {
class ComputerGroup;
}

/// The rows about the computer, which stand in the view with and without a battery.
class ComputerGroup : public QWidget
{
    Q_OBJECT

public:
    explicit ComputerGroup(QWidget* parent = nullptr);
    ~ComputerGroup() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();

    std::unique_ptr<Ui::ComputerGroup> m_ui;
};

} // namespace quindle
