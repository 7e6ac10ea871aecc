#pragma once

#include <vector>

#include "application/pages/ScrollPage.h"
#include "facts/Fact.h"

class QBoxLayout;
class QVBoxLayout;

namespace quindle {

class FactList;
class FactRow;
class MainInterface;
class PlainLabel;
class menuIndicator;

/// The page "Battery": the facts of the battery view with room around them, each battery of several by
/// itself, and the batteries of devices. In two columns where the window is wide enough.
class BatteryPage : public ScrollPage
{
    Q_OBJECT

public:
    /// The interface must outlive it, and says how to colour the bars.
    explicit BatteryPage(MainInterface& interface, QWidget* parent = nullptr);

    /// Shows the present facts; for every refresh of the models. Does nothing while the page is not seen.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// A big figure with its sign, words beside it, a bar, and a row that explains the bar.
    struct Gauge
    {
        QWidget* box = nullptr;
        QVBoxLayout* layout = nullptr;
        PlainLabel* caption = nullptr;
        PlainLabel* figure = nullptr;
        PlainLabel* sign = nullptr;
        PlainLabel* words = nullptr;
        menuIndicator* bar = nullptr;
        FactRow* row = nullptr;
    };

    Gauge makeGauge(const QString& caption);
    FactList* makeList(const QString& heading);
    void show(const Gauge& gauge, const Fact& fact, const QString& words, const QString& before,
              const QString& after);
    void performClick(FactClick click);
    void showAll(const std::vector<Fact>& facts);
    void fitToFont();
    void fitFigure(const Gauge& gauge, double factor) const;
    void arrange();

    MainInterface& m_interface;
    PlainLabel* m_noBattery;
    Gauge m_charge;
    FactList* m_stateList;
    Gauge m_health;
    FactList* m_batteryList;
    FactList* m_batteriesList;
    FactList* m_devicesList;
    FactList* m_computerList;
    QBoxLayout* m_columns;
    QVBoxLayout* m_near;
    QVBoxLayout* m_far;
};

} // namespace quindle
