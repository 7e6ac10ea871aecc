#pragma once

#include <map>

#include <QTranslator>

namespace quindle::test {

/// The texts of the panes in a language that needs more room.
class LongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* source, const char*, int) const override
    {
        static const std::map<QString, QString> german{
            {QStringLiteral("&Menu bar text"), QStringLiteral(u"&Menüleistentext")},
            {QStringLiteral("&Parameters"), QStringLiteral("&Platzhalter")},
            {QStringLiteral("&Reset"), QStringLiteral(u"Zu&rücksetzen")},
            {QStringLiteral("Now shows"), QStringLiteral("Zeigt zurzeit")},
            {QStringLiteral("Temperature"), QStringLiteral("Temperatureinheit")},
            {QStringLiteral("Menu bar"), QStringLiteral(u"Menüleistendarstellung")},
            {QStringLiteral("Show battery &icon"), QStringLiteral("Batter&iesymbol anzeigen")},
            {QStringLiteral("Statistics"), QStringLiteral("Nutzungsstatistik")},
            {QStringLiteral("Send battery &health once a day"),
             QStringLiteral(u"Batteriegesund&heit einmal täglich übermitteln")},
            {QStringLiteral("The serial number is masked."),
             QStringLiteral("Die Seriennummer wird unkenntlich gemacht.")},
            {QStringLiteral("See &exactly what is sent..."),
             QStringLiteral(u"G&enau ansehen, was übermittelt wird ...")},
            {QStringLiteral("Login"), QStringLiteral("Anmeldung")},
            {QStringLiteral("Start when I lo&g in"),
             QStringLiteral("Bei meiner Anmeldun&g automatisch starten")},
            {QStringLiteral("This option can only be disabled in main application. Run it via \"Open "
                            "Application\" from the menu"),
             QStringLiteral(u"Diese Einstellung lässt sich nur im Hauptprogramm ausschalten. Es wird über "
                            u"\"Open Application\" aus dem Menü gestartet")},
        };
        const auto found = german.find(QString::fromUtf8(source));
        return found == german.end() ? QString() : found->second;
    }
};

} // namespace quindle::test
