#include "records/SampleExport.h"

#include <cmath>
#include <optional>

#include <QDateTime>
#include <QStringList>

#include "common/NumberTexts.h"
#include "records/CsvText.h"
#include "samples/Sample.h"

namespace quindle {

namespace {

QString momentOf(const Sample& sample)
{
    return QDateTime::fromSecsSinceEpoch(sample.moment, Qt::UTC).toString(Qt::ISODate);
}

QString numberText(std::optional<double> number, const QString& missing)
{
    return number && std::isfinite(*number) ? fixedText(*number, 2) : missing;
}

QByteArray tableOf(const std::vector<Sample>& samples)
{
    QByteArray table = csvRecord({QStringLiteral("Moment"), QStringLiteral("Charge"), QStringLiteral("Power"),
                                  QStringLiteral("State")});
    for (const Sample& sample : samples)
        table += csvRecord({momentOf(sample), numberText(sample.charge, {}), numberText(sample.power, {}),
                            QString::fromLatin1(sampleStateName(sample.state))});
    return table;
}

/// None of its texts needs escaping.
QByteArray objectsOf(const std::vector<Sample>& samples)
{
    const QString none = QStringLiteral("null");
    QByteArray text = "[";
    const char* before = "\n";
    for (const Sample& sample : samples) {
        const QString object =
            QStringLiteral(R"({"Moment": "%1", "Charge": %2, "Power": %3, "State": "%4"})");
        text += before + object
                             .arg(momentOf(sample), numberText(sample.charge, none),
                                  numberText(sample.power, none),
                                  QString::fromLatin1(sampleStateName(sample.state)))
                             .toLatin1();
        before = ",\n";
    }
    return text + "\n]\n";
}

} // namespace

QByteArray samplesText(const std::vector<Sample>& samples, ExportFormat format)
{
    return format == ExportFormat::Csv ? tableOf(samples) : objectsOf(samples);
}

} // namespace quindle
