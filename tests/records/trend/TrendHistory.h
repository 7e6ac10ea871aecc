#pragma once

#include <cmath>
#include <random>
#include <vector>

#include <QDate>
#include <QDateTime>

#include "records/trend/CapacityPoints.h"

namespace quindle::test {

/// How an invented battery wears from its first day on, one point a day.
struct TrendHistory
{
    QDate firstDay{2024, 1, 11};
    int days = 1045; ///< points
    double firstPercent = 98;
    double perYear = -4.9;
    double noise = 0.3; ///< percent
    double design = 7150;
    bool tellsDesign = true;
    QString batteryID = QStringLiteral("first");
    int cyclesAYear = 102;
};

/// The same points every time.
inline std::vector<CapacityPoint> capacitiesOf(const TrendHistory& history)
{
    std::mt19937 random(17);
    std::normal_distribution<double> beside(0, 1);
    std::vector<CapacityPoint> points;
    for (int day = 0; day < history.days; ++day) {
        const double years = day / 365.25;
        const double percent =
            history.firstPercent + history.perYear * years + history.noise * beside(random);
        const QDateTime moment(history.firstDay.addDays(day), QTime(9, 0), Qt::UTC);
        points.push_back({.moment = moment.toSecsSinceEpoch(),
                          .batteryID = history.batteryID,
                          .fullChargeCapacity = std::round(percent / 100 * history.design),
                          .designCapacity = history.tellsDesign ? history.design : 0,
                          .cycleCount = static_cast<qint64>(years * history.cyclesAYear)});
    }
    return points;
}

inline std::vector<CapacityPoint> joined(std::vector<CapacityPoint> first,
                                         const std::vector<CapacityPoint>& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace quindle::test
