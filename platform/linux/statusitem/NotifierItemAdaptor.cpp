#include "platform/linux/statusitem/NotifierItemAdaptor.h"

#include <QtEndian>

#include "platform/linux/pictures/Pixels.h"
#include "platform/linux/statusitem/Presentation.h"
#include "platform/linux/statusitem/StatusPictures.h"

namespace quindle {

NotifierPixmap notifierPixmap(const Pixels& picture)
{
    NotifierPixmap pixmap{picture.width, picture.height, {}};
    pixmap.pixels.resize(4 * static_cast<qsizetype>(picture.data.size()));
    char* to = pixmap.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, to += 4)
            qToBigEndian(colourAt(picture, x, y), to);
    }
    return pixmap;
}

NotifierItemAdaptor::NotifierItemAdaptor(QObject* item, const Presentation& presentation,
                                         StatusPictures& pictures, Requests requests)
    : QDBusAbstractAdaptor(item)
    , m_announced(presentation)
    , m_pictures(pictures)
    , m_requests(std::move(requests))
{
    registerNotifierTypes();
}

void NotifierItemAdaptor::announceAll()
{
    Q_EMIT NewTitle();
    Q_EMIT NewIcon();
    Q_EMIT NewAttentionIcon();
    Q_EMIT NewStatus(status());
    Q_EMIT NewToolTip();
    Q_EMIT XAyatanaNewLabel(m_announced.label, m_announced.labelGuide);
}

void NotifierItemAdaptor::announce(const Presentation& last)
{
    if (m_announced.title != last.title)
        Q_EMIT NewTitle();
    if (m_announced.picture != last.picture || m_announced.carrier != last.carrier)
        Q_EMIT NewIcon();
    announceAttention(last);
    if (m_announced.toolTipTitle != last.toolTipTitle || m_announced.toolTipBody != last.toolTipBody)
        Q_EMIT NewToolTip();
    if (m_announced.label != last.label || m_announced.labelGuide != last.labelGuide)
        Q_EMIT XAyatanaNewLabel(m_announced.label, m_announced.labelGuide);
}

/// The icon first, so that it is there when the host shows it.
void NotifierItemAdaptor::announceAttention(const Presentation& last)
{
    const bool isNew = m_announced.needsAttention != last.needsAttention;
    const bool isOther = m_announced.picture != last.picture || m_announced.carrier != last.carrier;
    if (isNew || (m_announced.needsAttention && isOther))
        Q_EMIT NewAttentionIcon();
    if (isNew)
        Q_EMIT NewStatus(status());
}

QString NotifierItemAdaptor::category() const
{
    return QStringLiteral("Hardware");
}

QString NotifierItemAdaptor::id() const
{
    return QStringLiteral("quindle-helper");
}

QString NotifierItemAdaptor::title() const
{
    return m_announced.title;
}

QString NotifierItemAdaptor::status() const
{
    return m_announced.needsAttention ? QStringLiteral("NeedsAttention") : QStringLiteral("Active");
}

int NotifierItemAdaptor::windowId() const
{
    return 0;
}

QString NotifierItemAdaptor::noText() const
{
    return {};
}

QString NotifierItemAdaptor::iconName() const
{
    if (m_announced.picture.kind == Picture::Kind::Transparent)
        return m_pictures.transparentFile();
    switch (m_announced.carrier) {
    case Carrier::File:
        return m_pictures.file(m_announced.picture);
    case Carrier::Drawing:
        return m_pictures.drawing(m_announced.picture);
    case Carrier::Pixels:
        break;
    }
    return {};
}

QList<NotifierPixmap> NotifierItemAdaptor::iconPixmap() const
{
    // Some hosts prefer pixels to a name, and would not colour these.
    if (m_announced.carrier == Carrier::Drawing && !m_pictures.drawing(m_announced.picture).isEmpty())
        return {};
    return pixmapsOf(m_announced.picture);
}

QList<NotifierPixmap> NotifierItemAdaptor::pixmapsOf(const Picture& picture) const
{
    QList<NotifierPixmap> pixmaps;
    for (const Pixels& image : m_pictures.images(picture))
        pixmaps.append(notifierPixmap(image));
    return pixmaps;
}

// A drawing would get the panel's colour, so hosts of drawings get a file of pixels.
QString NotifierItemAdaptor::attentionIconName() const
{
    if (!m_announced.needsAttention)
        return {};
    if (m_announced.picture.kind == Picture::Kind::Transparent)
        return m_pictures.transparentFile();
    return m_announced.carrier == Carrier::Pixels ? QString()
                                                  : m_pictures.file(attentionPicture(m_announced));
}

QList<NotifierPixmap> NotifierItemAdaptor::attentionIconPixmap() const
{
    if (!m_announced.needsAttention || !attentionIconName().isEmpty())
        return {};
    return pixmapsOf(attentionPicture(m_announced));
}

QList<NotifierPixmap> NotifierItemAdaptor::noPixmap() const
{
    return {};
}

NotifierToolTip NotifierItemAdaptor::toolTip() const
{
    return {{}, {}, m_announced.toolTipTitle, m_announced.toolTipBody};
}

bool NotifierItemAdaptor::itemIsMenu() const
{
    return false;
}

QDBusObjectPath NotifierItemAdaptor::menu() const
{
    return QDBusObjectPath(QLatin1String(menuObjectPath));
}

QString LabelledItemAdaptor::label() const
{
    return presentation().label;
}

QString LabelledItemAdaptor::labelGuide() const
{
    return presentation().labelGuide;
}

const Presentation& NotifierItemAdaptor::presentation() const
{
    return m_announced;
}

uint NotifierItemAdaptor::orderingIndex() const
{
    return 0;
}

// Only hosts that cannot show the exported menu call this. The battery view has the menu's entries too.
void NotifierItemAdaptor::ContextMenu(int /*x*/, int /*y*/)
{
    m_requests.clicked();
}

// Hosts give coordinates relative to screen, panel or widget, so they are useless.
void NotifierItemAdaptor::Activate(int /*x*/, int /*y*/)
{
    m_requests.clicked();
}

void NotifierItemAdaptor::SecondaryActivate(int /*x*/, int /*y*/)
{
    m_requests.clicked();
}

void NotifierItemAdaptor::XAyatanaSecondaryActivate(uint /*timestamp*/)
{
    m_requests.clicked();
}

void NotifierItemAdaptor::Scroll(int /*delta*/, const QString& /*orientation*/) {}

void NotifierItemAdaptor::ProvideXdgActivationToken(const QString& token)
{
    m_requests.activationToken(token);
}

} // namespace quindle

#include "moc_NotifierItemAdaptor.cpp"
