#include "application/pages/HistoryPage.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "application/pages/WearChart.h"
#include "charts/ChartLayout.h"
#include "charts/TimeSeriesChart.h"
#include "common/NumberTexts.h"
#include "facts/ValueTexts.h"
#include "records/trend/TrendSentence.h"
#include "view/ViewMetrics.h"
#include "widgets/PlainLabel.h"
#include "widgets/QuietLabel.h"
#include "widgets/controls/LinkButton.h"
#include "widgets/controls/SegmentedControl.h"

namespace quindle {

namespace {

QString viewCount(qint64 count)
{
    return groupedText(count, groupSeparator(FactPlace::View));
}

TrendTexts textsWithout()
{
    return {.sentence = HistoryPage::tr("No history yet"),
            .detail = HistoryPage::tr("One snapshot a day says how the battery wears")};
}

QString intervalText(const TrendEstimate& trend)
{
    if (!trend.pace || !trend.pace->isWear())
        return {};
    return HistoryPage::tr("With a probability of 95 % between %1 and %2 points a year")
        .arg(figureText(-trend.pace->flattest), figureText(-trend.pace->steepest));
}

bool isThinned(HistoryRange range)
{
    return range == HistoryRange::Year || range == HistoryRange::All;
}

} // namespace

HistoryPage::HistoryPage(QWidget* parent)
    : ScrollPage(parent)
    , m_heading(addLabel(false, QStringLiteral("healthHeading")))
    , m_figure(addLabel(false, QStringLiteral("healthFigure")))
    , m_sign(addLabel(true, QStringLiteral("healthSign")))
    , m_sentence(addLabel(false, QStringLiteral("trendSentence")))
    , m_detail(addLabel(true, QStringLiteral("trendDetail")))
    , m_wearCaption(addLabel(true, QStringLiteral("wearCaption")))
    , m_sampleHeading(addLabel(false, QStringLiteral("sampleHeading")))
    , m_legend(addLabel(true, QStringLiteral("sampleLegend")))
    , m_message(addLabel(true, QStringLiteral("message")))
    , m_notice(addLabel(true, QStringLiteral("recordingIsOff")))
    , m_ranges(new SegmentedControl(historyRangeTitles(), &content()))
    , m_wearChart(new TimeSeriesChart(tr("Full charge, whole history"), &content()))
    , m_sampleChart(new TimeSeriesChart(QString(), &content()))
    , m_toSettings(new LinkButton(&content()))
    , m_quantities(new SegmentedControl({tr("&Charge"), tr("&Power")}, &content()))
    , m_pictureButton(new QPushButton(tr("&Save Picture..."), &content()))
    , m_tableButton(new QPushButton(tr("&Export..."), &content()))
{
    setObjectName(QStringLiteral("historyPage"));
    setAccessibleName(tr("History"));
    auto* column = new QVBoxLayout(&content());
    makeHead(*column);
    column->addWidget(m_wearChart, 3);
    makeSampleHead(*column);
    column->addWidget(m_sampleChart, 2);
    makeNotice(*column);
    makeFoot(*column);
    fitToFont();
    showTrend();
    showSamples();
}

PlainLabel* HistoryPage::addLabel(bool isQuiet, const QString& name)
{
    auto* label = new PlainLabel(&content());
    label->setObjectName(name);
    label->setQuiet(isQuiet);
    return label;
}

QHBoxLayout* HistoryPage::addRow(QVBoxLayout& column)
{
    m_rows.push_back(new QHBoxLayout);
    column.addLayout(m_rows.back());
    return m_rows.back();
}

void HistoryPage::makeHead(QVBoxLayout& column)
{
    m_heading->setText(tr("Health"));
    m_sign->setText(QStringLiteral("%"));
    m_wearCaption->setText(tr("Full charge, mAh"));
    for (PlainLabel* whole : {m_figure, m_sign})
        // The figure is never cut; the words beside it give way.
        whole->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_ranges->setAccessibleName(tr("Range"));
    m_ranges->selectSegmentWithTag(static_cast<int>(m_range));
    connect(m_ranges, &SegmentedControl::action, this, &HistoryPage::chooseRange);

    QHBoxLayout* title = addRow(column);
    title->addWidget(m_heading, 1);
    title->addWidget(m_ranges);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_sentence);
    words->addWidget(m_detail);
    m_figureRow = addRow(column);
    m_figureRow->addWidget(m_figure, 0, Qt::AlignBottom);
    m_figureRow->addWidget(m_sign, 0, Qt::AlignBottom);
    m_figureRow->addLayout(words, 1);
    m_figureRow->setAlignment(words, Qt::AlignVCenter);
    column.addWidget(m_wearCaption);
}

void HistoryPage::makeSampleHead(QVBoxLayout& column)
{
    m_legend->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_sampleChart, &TimeSeriesChart::seenChanged, this, &HistoryPage::showLegend);
    QHBoxLayout* head = addRow(column);
    head->addWidget(m_sampleHeading, 1);
    head->addWidget(m_legend, 1);
}

void HistoryPage::makeFoot(QVBoxLayout& column)
{
    m_quantities->setAccessibleName(tr("Quantity"));
    m_quantities->selectSegmentWithTag(static_cast<int>(m_quantity));
    connect(m_quantities, &SegmentedControl::action, this, [this] {
        m_quantity = static_cast<SampleQuantity>(m_quantities->selectedTag());
        showSamples();
    });
    connect(m_pictureButton, &QPushButton::clicked, this, &HistoryPage::askForPicture);
    connect(m_tableButton, &QPushButton::clicked, this, &HistoryPage::askForTable);
    QHBoxLayout* foot = addRow(column);
    foot->addWidget(m_quantities);
    foot->addWidget(m_message, 1);
    foot->addWidget(m_pictureButton);
    foot->addWidget(m_tableButton);
}

void HistoryPage::makeNotice(QVBoxLayout& column)
{
    m_notice->setText(tr("Recording is off, so nothing is added."));
    m_toSettings->setText(tr("Settings"));
    m_toSettings->setAccessibleName(tr("Settings of recording"));
    connect(m_toSettings, &LinkButton::clicked, this, &HistoryPage::settingsWanted);
    QHBoxLayout* row = addRow(column);
    row->addWidget(m_notice);
    row->addWidget(m_toSettings);
    row->addStretch(1);
    setRecording(true);
}

void HistoryPage::setRecording(bool isOn)
{
    m_notice->setVisible(!isOn);
    m_toSettings->setVisible(!isOn);
}

void HistoryPage::setCapacities(std::vector<CapacityPoint> capacities, const QString& fault)
{
    m_capacities = std::move(capacities);
    m_capacitiesFault = fault;
    showTrend();
}

void HistoryPage::setSamples(std::vector<Sample> samples, qint64 ownSince)
{
    m_samples = std::move(samples);
    m_ownSince = ownSince;
    showSamples();
}

void HistoryPage::setNow(qint64 now)
{
    m_now = now;
    showTrend();
    Q_EMIT samplesWanted(historyRangeStart(m_range, m_now), m_now);
}

void HistoryPage::chooseRange()
{
    m_range = static_cast<HistoryRange>(m_ranges->selectedTag());
    // What was zoomed to belongs to the range before.
    m_sampleChart->showAll();
    Q_EMIT samplesWanted(historyRangeStart(m_range, m_now), m_now);
}

void HistoryPage::showTrend()
{
    const std::optional<TrendEstimate> trend = trendOf(m_capacities);
    const TrendTexts texts = trend ? trendTexts(*trend, m_now, viewCount) : textsWithout();
    m_figure->setText(trend ? figureText(trend->percent) : QString());
    for (PlainLabel* label : {m_figure, m_sign, m_wearCaption})
        label->setVisible(trend.has_value());
    m_sentence->setText(texts.sentence);
    m_detail->setText(texts.detail);
    m_detail->setToolTip(trend ? intervalText(*trend) : QString());
    ChartContent wear = wearChart(m_capacities, trend);
    if (!m_capacitiesFault.isEmpty())
        wear.emptyText = m_capacitiesFault;
    m_wearChart->setContent(std::move(wear));
    m_pictureButton->setEnabled(trend || !m_samples.empty());
}

AxisSpan HistoryPage::shownMoments() const
{
    // A history of a week in a chart of all time would be a line at its edge.
    const bool beginsWithFirst = m_range == HistoryRange::All && !m_samples.empty();
    const qint64 start = beginsWithFirst ? m_samples.front().moment
                                         : historyRangeStart(std::min(m_range, HistoryRange::Year), m_now);
    return {static_cast<double>(start), static_cast<double>(std::max(start + 1, m_now))};
}

void HistoryPage::showSamples()
{
    const QString heading = m_quantity == SampleQuantity::Charge ? tr("Charge, %1") : tr("Power, %1");
    m_sampleHeading->setText(heading.arg(historyRangeText(m_range)));
    m_sampleChart->setAccessibleName(m_sampleHeading->text());
    m_sampleChart->setContent(sampleChart(m_samples, m_quantity, shownMoments(), m_ownSince));
    m_tableButton->setEnabled(!m_samples.empty());
    m_pictureButton->setEnabled(!m_capacities.empty() || !m_samples.empty());
    showLegend();
}

void HistoryPage::showLegend()
{
    // By what is seen: zoomed in far enough, longer ranges are shaded too.
    const bool isShaded = m_sampleChart->seen().length() <= m_sampleChart->content().shadedUpTo;
    const QString unit = m_quantity == SampleQuantity::Charge ? QStringLiteral("%") : QStringLiteral("W");
    QString legend = isShaded ? tr("charging shaded") : QString();
    legend = besideEachOther(legend, tr("asleep left open"));
    if (!m_samples.empty() && m_samples.front().moment < m_ownSince)
        legend = besideEachOther(tr("pale from UPower"), legend);
    if (isThinned(m_range))
        legend = besideEachOther(tr("older values are means"), legend);
    m_legend->setVisible(hasPoints(m_sampleChart->content()));
    m_legend->setText(besideEachOther(unit, legend));
}

void HistoryPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitToFont();
    ScrollPage::changeEvent(event);
}

void HistoryPage::showEvent(QShowEvent* event)
{
    ScrollPage::showEvent(event);
    Q_EMIT shown();
}

void HistoryPage::fitToFont()
{
    const ViewMetrics metrics(*this);
    const int line = fontMetrics().height();
    const int margin = line * 3 / 2;
    // The charts' last moment is at the rows' end, and what they draw after it lies in the margin.
    const int overhang = static_cast<int>(chartOverhang(QFontMetricsF(quietFont(font())).height()));
    content().layout()->setContentsMargins(margin, margin, margin - overhang, line);
    content().layout()->setSpacing(metrics.rowGap * 2);
    for (QHBoxLayout* row : m_rows)
        row->setContentsMargins(0, 0, overhang, 0);
    m_figureRow->setSpacing(line / 2);
    m_figure->setFont(metrics.large);
    m_sign->setFont(metrics.medium);
    for (PlainLabel* label : {m_detail, m_wearCaption, m_legend, m_message, m_notice})
        label->setFont(metrics.small);
    m_toSettings->setFont(metrics.small);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    for (PlainLabel* label : {m_heading, m_sampleHeading})
        label->setFont(bold);
    // The figure and its sign stand on one line of writing; between the sign and the words is some room.
    const int deeper = m_figure->fontMetrics().descent() - m_sign->fontMetrics().descent();
    m_sign->setContentsMargins(0, 0, line, deeper);
    m_sampleHeading->setContentsMargins(0, line / 2, 0, 0);
    m_legend->setContentsMargins(0, line / 2, 0, 0);
}

} // namespace quindle

#include "moc_HistoryPage.cpp"
