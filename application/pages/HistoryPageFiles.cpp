// What the history page saves: a picture of itself, and the numbers that it shows.
#include <algorithm>
#include <functional>
#include <iterator>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QSaveFile>
#include <QStyle>
#include <QSvgGenerator>

#include "application/pages/HistoryPage.h"
#include "charts/ChartLook.h"
#include "charts/ChartPainter.h"
#include "charts/TimeSeriesChart.h"
#include "common/Paths.h"
#include "records/SampleExport.h"
#include "widgets/FileDialog.h"
#include "widgets/PaletteMix.h"
#include "widgets/PlainLabel.h"
#include "widgets/PlainText.h"

namespace quindle {

namespace {

constexpr int pictureScale = 2; // as screens of today show it sharp

void paintLabel(QPainter& painter, const PlainLabel& label)
{
    if (label.isHidden())
        return;
    painter.setFont(label.font());
    painter.setPen(label.isQuiet() ? quietTextOf(label) : textOf(label));
    const QRect place = label.contentsRect().translated(label.pos());
    drawPlainLine(painter, place, QStyle::visualAlignment(label.layoutDirection(), label.alignment()),
                  label.text());
}

void paintChartOf(QPainter& painter, const TimeSeriesChart& chart)
{
    paintChart(painter, chart.content(), chart.layoutInside(chart.geometry()), chartLook(chart));
}

QFileDialog* saveDialog(QWidget* parent, const QString& title, const QStringList& filters,
                        const QString& suffix)
{
    QFileDialog* dialog = makeFileDialog(parent, title, filters);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix);
    dialog->selectFile(QStringLiteral("battery-history.") + suffix);
    return dialog;
}

/// Why it could not be written; empty when it was.
QString written(const QString& path, const std::function<bool(QIODevice&)>& write)
{
    QSaveFile file(path);
    // Flushed by itself: a failure of the flush that committing makes would go unnoticed.
    const bool done = file.open(QIODevice::WriteOnly) && write(file) && file.flush() && file.commit();
    return done ? QString() : file.errorString();
}

} // namespace

QSize HistoryPage::pictureSize() const
{
    const int below = m_sampleChart->geometry().bottom() + 1 + content().layout()->contentsMargins().bottom();
    return {content().width(), below};
}

void HistoryPage::paintPicture(QPainter& painter) const
{
    painter.fillRect(QRect(QPoint(0, 0), pictureSize()), backgroundOf(content()));
    for (const PlainLabel* label :
         {m_heading, m_figure, m_sign, m_sentence, m_detail, m_wearCaption, m_sampleHeading, m_legend})
        paintLabel(painter, *label);
    for (const TimeSeriesChart* chart : {m_wearChart, m_sampleChart})
        paintChartOf(painter, *chart);
}

void HistoryPage::askForPicture()
{
    QFileDialog* dialog = saveDialog(this, tr("Save Picture"),
                                     {tr("Pictures (*.png)"), tr("Drawings (*.svg)")}, QStringLiteral("png"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.contains(QStringLiteral("svg")) ? QStringLiteral("svg")
                                                                        : QStringLiteral("png"));
    });
    connect(dialog, &QFileDialog::fileSelected, this, &HistoryPage::savePicture);
    dialog->open();
}

void HistoryPage::askForTable()
{
    QFileDialog* dialog = saveDialog(this, tr("Export"), {tr("Tables (*.csv)")}, QStringLiteral("csv"));
    connect(dialog, &QFileDialog::fileSelected, this, &HistoryPage::saveTable);
    dialog->open();
}

void HistoryPage::savePicture(const QString& path)
{
    const bool isDrawing = path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive);
    showWritten(path, written(path, [this, isDrawing](QIODevice& file) {
                    return isDrawing ? writeDrawing(file) : writePicture(file);
                }));
}

bool HistoryPage::writePicture(QIODevice& file) const
{
    QImage picture(pictureSize() * pictureScale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(pictureScale);
    QPainter painter(&picture);
    paintPicture(painter);
    painter.end();
    return picture.save(&file, "PNG");
}

bool HistoryPage::writeDrawing(QIODevice& file) const
{
    QSvgGenerator drawing;
    drawing.setOutputDevice(&file);
    drawing.setSize(pictureSize());
    drawing.setViewBox(QRect(QPoint(0, 0), pictureSize()));
    drawing.setTitle(accessibleName());
    QPainter painter(&drawing);
    paintPicture(painter);
    return painter.end();
}

void HistoryPage::saveTable(const QString& path)
{
    const AxisSpan seen = m_sampleChart->seen();
    std::vector<Sample> samples;
    std::copy_if(m_samples.begin(), m_samples.end(), std::back_inserter(samples),
                 [&seen](const Sample& sample) { return seen.contains(static_cast<double>(sample.moment)); });
    const QByteArray table = samplesText(samples, ExportFormat::Csv);
    showWritten(path, written(path, [&table](QIODevice& file) { return file.write(table) == table.size(); }));
}

void HistoryPage::showWritten(const QString& path, const QString& failure)
{
    showMessage(failure.isEmpty() ? tr("Saved") : path + QStringLiteral(": ") + failure);
}

void HistoryPage::showMessage(const QString& line)
{
    m_message->setText(line);
    // In a narrow window the end of it is cut.
    m_message->setToolTip(line.toHtmlEscaped());
}

} // namespace quindle
