#include "platform/linux/statusitem/InterfaceFont.h"

#include <utility>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include "platform/linux/display/XSettings.h"
#include "platform/linux/pictures/FontChoice.h"

namespace quindle {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString settingChangedSignal = QStringLiteral("SettingChanged");
const QStringList fontSetting{QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("font-name")};

/// The text in a variant, which the portal wraps in another one.
QString textIn(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toString();
}

} // namespace

InterfaceFont::InterfaceFont(X11Display& display, RunLoop& runLoop)
    : m_display(display)
    , m_changes(runLoop, 0.0, [this] {
        forgetAnswer();
        need();
    })
{
}

InterfaceFont::~InterfaceFont() = default;

void InterfaceFont::setBus(const QDBusConnection& bus)
{
    // An answer from the previous bus would be about another session.
    m_question.reset();
    m_bus = bus;
    m_isAsked = false;
}

void InterfaceFont::forgetAnswer()
{
    m_isAsked = false;
}

void InterfaceFont::need()
{
    if (std::exchange(m_isAsked, true))
        return;
    const QByteArray fontName = xsettingsFontName(m_display);
    // On X11 the settings manager has the panel's own font.
    if (!fontName.isEmpty())
        take(QString::fromUtf8(fontName));
    else if (m_bus.isConnected())
        askPortal();
}

void InterfaceFont::askPortal()
{
    // From any sender: only the moment of the signal is used, at most twice a second.
    m_bus.connect(QString(), portalPath, portalInterface, settingChangedSignal, fontSetting, QString(), this,
                  SLOT(settingChanged()));
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, QStringLiteral("Read"));
    question << fontSetting.at(0) << fontSetting.at(1);
    // A portal that does not run is not worth starting for a font.
    question.setAutoStartService(false);
    m_question = std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(question));
    connect(m_question.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        const QDBusMessage answer = m_question->reply();
        m_question.release()->deleteLater();
        if (answer.type() == QDBusMessage::ReplyMessage)
            take(textIn(answer.arguments().value(0)));
    });
}

void InterfaceFont::settingChanged()
{
    m_changes.request();
}

void InterfaceFont::take(const QString& fontName)
{
    const QString family = familyOfFontName(fontName);
    if (std::exchange(m_family, family) != family)
        Q_EMIT changed();
}

} // namespace quindle

#include "moc_InterfaceFont.cpp"
