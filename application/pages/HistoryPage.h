#pragma once

#include <vector>

#include "application/pages/HistoryRange.h"
#include "application/pages/SampleChart.h"
#include "application/pages/ScrollPage.h"
#include "records/trend/CapacityPoints.h"
#include "samples/Sample.h"

class QHBoxLayout;
class QIODevice;
class QPainter;
class QPushButton;
class QVBoxLayout;

namespace quindle {

class LinkButton;
class PlainLabel;
class SegmentedControl;
class TimeSeriesChart;

/// How the battery wears over its whole life, with one plain sentence about it, and what its charge and power
/// did over a chosen span. It reads neither clock nor file: whoever shows it supplies both.
class HistoryPage : public ScrollPage
{
    Q_OBJECT

public:
    explicit HistoryPage(QWidget* parent = nullptr);

    /// By moment. `fault` says why they could not be read; empty when they were.
    void setCapacities(std::vector<CapacityPoint> capacities, const QString& fault = {});

    /// Those that samplesWanted() asked for last, by moment; before the moment `ownSince` from another
    /// service's history.
    void setSamples(std::vector<Sample> samples, qint64 ownSince = 0);

    /// Whether anything is added to the history; where not, the page says so.
    void setRecording(bool isOn);

    /// Seconds since 1970. Asks for the samples of the shown range anew.
    void setNow(qint64 now);

    /// Shows a line for the user beside the buttons.
    void showMessage(const QString& line);

    HistoryRange range() const { return m_range; }

    /// Writes a picture, or a drawing where the name ends with ".svg"; the page says whether that was done.
    void savePicture(const QString& path);

    /// Writes the samples of the moments that are seen.
    void saveTable(const QString& path);

    /// What is on the page, without controls, as it is laid out at the moment.
    void paintPicture(QPainter& painter) const;
    QSize pictureSize() const;

Q_SIGNALS:
    /// The range was chosen, or what is now has moved on.
    void samplesWanted(qint64 from, qint64 to);

    void shown();

    /// The user wants to switch recording on.
    void settingsWanted();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* addRow(QVBoxLayout& column);
    void makeHead(QVBoxLayout& column);
    void makeSampleHead(QVBoxLayout& column);
    void makeFoot(QVBoxLayout& column);
    void makeNotice(QVBoxLayout& column);
    PlainLabel* addLabel(bool isQuiet, const QString& name);
    void fitToFont();
    void showTrend();
    void showSamples();
    void showLegend();
    void chooseRange();
    AxisSpan shownMoments() const;
    void askForPicture();
    void askForTable();
    bool writePicture(QIODevice& file) const;
    bool writeDrawing(QIODevice& file) const;
    void showWritten(const QString& path, const QString& failure);

    std::vector<CapacityPoint> m_capacities;
    QString m_capacitiesFault;
    std::vector<Sample> m_samples;
    qint64 m_ownSince = 0;
    qint64 m_now = 0;
    HistoryRange m_range = HistoryRange::Day;
    SampleQuantity m_quantity = SampleQuantity::Charge;

    PlainLabel* m_heading;
    PlainLabel* m_figure;
    PlainLabel* m_sign;
    PlainLabel* m_sentence;
    PlainLabel* m_detail;
    PlainLabel* m_wearCaption;
    PlainLabel* m_sampleHeading;
    PlainLabel* m_legend;
    PlainLabel* m_message;
    PlainLabel* m_notice;
    // From the top to the bottom: Tab goes in the order in which they are made.
    SegmentedControl* m_ranges;
    TimeSeriesChart* m_wearChart;
    TimeSeriesChart* m_sampleChart;
    LinkButton* m_toSettings;
    SegmentedControl* m_quantities;
    QPushButton* m_pictureButton;
    QPushButton* m_tableButton;
    std::vector<QHBoxLayout*> m_rows;
    QHBoxLayout* m_figureRow = nullptr;
};

} // namespace quindle
