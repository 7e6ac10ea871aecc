#include "application/pages/SampleTable.h"

#include <QDateTime>

#include "common/NumberTexts.h"
#include "records/CsvText.h"
#include "samples/SampleLine.h"

namespace quindle {

QByteArray sampleTable(const std::vector<Sample>& samples, AxisSpan moments)
{
    QByteArray table = csvRecord({QStringLiteral("Moment"), QStringLiteral("Charge"), QStringLiteral("Power"),
                                  QStringLiteral("State")});
    for (const Sample& sample : samples) {
        if (!moments.contains(static_cast<double>(sample.moment)))
            continue;
        const QDateTime moment = QDateTime::fromSecsSinceEpoch(sample.moment, Qt::UTC);
        table += csvRecord({moment.toString(Qt::ISODate), fixedText(sample.charge, 2),
                            sample.power ? fixedText(*sample.power, 2) : QString(),
                            QString::fromLatin1(sampleStateName(sample.state))});
    }
    return table;
}

} // namespace quindle
