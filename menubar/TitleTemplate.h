#pragma once

#include <QString>

namespace quindle {

/// What the placeholders of a title template stand for at one moment.
struct TitleValues
{
    double temperature = 0;    ///< %t, in the unit the user chose for the title; shortest text, no unit sign
    bool isCharging = false;   ///< %s, an upward arrow while charging, a downward one otherwise
    QString timeRemaining;     ///< %r, as it stands
    double stateOfCharge = 0;  ///< %p, percent with one decimal
    double wattThroughput = 0; ///< %w, watts with one decimal
    qint64 amperage = 0;       ///< %mA, mA, negative while discharging
    qint64 cycleCount = 0;     ///< %l

    // Where nothing is known a title shows a stand-in ("0.0"); an explanation of the placeholders may say so.
    bool knowsTemperature = true;
    bool knowsPower = true;
    bool knowsCurrent = true;
};

/// The template of a user who has not written one.
QString defaultTitleTemplate();

/// The title: every placeholder replaced, one placeholder after the other in the order above, each in the
/// result so far, so that a "%" left by one may form a later placeholder with what follows it. Only the first
/// 4,096 characters of the template are shown.
QString titleFromTemplate(const QString& titleTemplate, const TitleValues& values);

/// Whether it shows a figure that changes from one reading of the battery to the next: power, current or
/// time.
bool showsPassingFigures(const QString& titleTemplate);

} // namespace quindle
