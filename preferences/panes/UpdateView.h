#pragma once

#include <memory>

#include <QWidget>

namespace quindle {

namespace Ui {
class UpdatePreferencesController;
}

/// The view of the pane "Update", from the interface file "UpdatePreferencesController".
class UpdateView : public QWidget
{
    Q_OBJECT

public:
    UpdateView(const QString& version, const QString& updateSource);
    ~UpdateView() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToFont();

    std::unique_ptr<Ui::UpdatePreferencesController> m_ui;
};

} // namespace quindle
