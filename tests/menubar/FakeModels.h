#pragma once

#include <QObject>
#include <QVariant>

namespace quindle::test {

/// A battery with the property names of the model, filled as on a discharging portable.
class FakeBattery : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant Manufacturer MEMBER manufacturer NOTIFY changed)
    Q_PROPERTY(QVariant DeviceName MEMBER deviceName NOTIFY changed)
    Q_PROPERTY(QVariant SerialNumber MEMBER serialNumber NOTIFY changed)
    Q_PROPERTY(qint64 CycleCount MEMBER cycleCount NOTIFY changed)
    Q_PROPERTY(QString CycleCount_Desc MEMBER cycleCountDesc CONSTANT)
    Q_PROPERTY(qint64 CurrentCapacity MEMBER currentCapacity NOTIFY changed)
    Q_PROPERTY(qint64 FullChargeCapacity MEMBER fullChargeCapacity NOTIFY changed)
    Q_PROPERTY(qint64 DesignCapacity MEMBER designCapacity NOTIFY changed)
    Q_PROPERTY(qint64 ReportedDesignCapacity MEMBER reportedDesignCapacity NOTIFY changed)
    Q_PROPERTY(QString ReportedDesignCapacity_Desc MEMBER reportedDesc CONSTANT)
    Q_PROPERTY(qint64 ActualDesignCapacity MEMBER actualDesignCapacity NOTIFY changed)
    Q_PROPERTY(QString ActualDesignCapacity_Desc MEMBER actualDesc CONSTANT)
    Q_PROPERTY(QString BatteryHealth MEMBER batteryHealth NOTIFY changed)
    Q_PROPERTY(QString BatteryState MEMBER batteryState NOTIFY changed)
    Q_PROPERTY(QString StateText MEMBER stateText NOTIFY changed)
    Q_PROPERTY(QString TimeRemaining MEMBER timeRemaining NOTIFY changed)
    Q_PROPERTY(QString RemainingString MEMBER remainingString NOTIFY changed)
    Q_PROPERTY(QVariant AdapterWatt MEMBER adapterWatt NOTIFY changed)
    Q_PROPERTY(QString AdapterConnected MEMBER adapterConnected NOTIFY changed)
    Q_PROPERTY(double StateOfCharge MEMBER stateOfCharge NOTIFY changed)
    Q_PROPERTY(double StateOfHealth MEMBER stateOfHealth NOTIFY changed)
    Q_PROPERTY(double WattThroughput MEMBER wattThroughput NOTIFY changed)
    Q_PROPERTY(QString Temperature MEMBER temperature NOTIFY changed)
    Q_PROPERTY(QString CustomAge MEMBER customAge NOTIFY changed)
    Q_PROPERTY(bool knowsTemperature MEMBER knowsTemperature NOTIFY changed)
    Q_PROPERTY(bool knowsManufactureDate MEMBER knowsManufactureDate NOTIFY changed)

public:
    Q_INVOKABLE void toggleAge();
    Q_INVOKABLE void toggleTemperatureMode();

    QVariant manufacturer = QStringLiteral("Simplo");
    QVariant deviceName = QStringLiteral("bq20z451");
    QVariant serialNumber = QStringLiteral("D867D0E10AB1234");
    qint64 cycleCount = 293;
    QString cycleCountDesc = QStringLiteral("How often it was filled");
    qint64 currentCapacity = 4000;
    qint64 fullChargeCapacity = 6000;
    qint64 designCapacity = 7150;
    qint64 reportedDesignCapacity = 7300;
    QString reportedDesc = QStringLiteral("What the battery says");
    qint64 actualDesignCapacity = 7150;
    QString actualDesc = QStringLiteral("What its maker says");
    QString batteryHealth = QStringLiteral("Good");
    QString batteryState = QStringLiteral("Discharging...");
    QString stateText = QStringLiteral("Discharging with");
    QString timeRemaining = QStringLiteral("3:42");
    QString remainingString = QStringLiteral("Time until empty");
    QVariant adapterWatt;
    QString adapterConnected = QStringLiteral("Not connected");
    double stateOfCharge = 4000.0 / 6000 * 100;
    double stateOfHealth = 6000.0 / 7150 * 100;
    double wattThroughput = 12.4;
    QString temperature = QStringLiteral(u"30.0 \u00B0C");
    QString customAge = QStringLiteral("2.5 years");
    bool knowsTemperature = true;
    bool knowsManufactureDate = true;

Q_SIGNALS:
    void changed();
};

/// A computer with the property names of the model.
class FakeMac : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject* Battery MEMBER battery NOTIFY changed)
    Q_PROPERTY(QVariant OSXVersion MEMBER osxVersion NOTIFY changed)
    Q_PROPERTY(QVariant Model MEMBER model NOTIFY changed)
    Q_PROPERTY(QVariant Type MEMBER type NOTIFY changed)
    Q_PROPERTY(QVariant Name MEMBER name NOTIFY changed)
    Q_PROPERTY(QVariant LongModel MEMBER longModel NOTIFY changed)
    Q_PROPERTY(QVariant Serial MEMBER serial NOTIFY changed)
    Q_PROPERTY(QVariant CustomAge MEMBER customAge NOTIFY changed)
    Q_PROPERTY(bool knowsManufactureDate MEMBER knowsManufactureDate NOTIFY changed)

public:
    Q_INVOKABLE void toggleAge();

    QObject* battery = nullptr;
    QVariant osxVersion = QStringLiteral("Debian 12");
    QVariant model = QStringLiteral("MacBookAir6,2");
    QVariant type = QStringLiteral("MacBook Air");
    QVariant name = QStringLiteral("Demo Computer");
    QVariant longModel = QStringLiteral("(13-inch, Late 2013)");
    QVariant serial = QStringLiteral("C02MN1TXF5YW");
    QVariant customAge = QStringLiteral("34 months");
    bool knowsManufactureDate = true;

Q_SIGNALS:
    void changed();
};

} // namespace quindle::test
