#pragma once

#include <functional>

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QList>
#include <QString>

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

struct Picture;
struct Pixels;
struct Presentation;
class StatusPictures;

/// The status item as hosts see it on the bus. Names and types are the protocol's. Values come from the
/// presentation that the owner keeps; the owner emits the signals.
class NotifierItemAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ noText)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(QList<quindle::NotifierPixmap> IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noText)
    Q_PROPERTY(QList<quindle::NotifierPixmap> OverlayIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionIconName READ attentionIconName)
    Q_PROPERTY(QList<quindle::NotifierPixmap> AttentionIconPixmap READ attentionIconPixmap)
    Q_PROPERTY(QString AttentionMovieName READ noText)
    Q_PROPERTY(quindle::NotifierToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(uint XAyatanaOrderingIndex READ orderingIndex)

public:
    /// What a host can ask of the item.
    struct Requests
    {
        std::function<void()> clicked;                       ///< the item was clicked
        std::function<void(const QString&)> activationToken; ///< allows the next window to come to the front
    };

    NotifierItemAdaptor(QObject* item, const Presentation& presentation, StatusPictures& pictures,
                        Requests requests);

    /// Signals what is different in the presentation from the last one.
    void announce(const Presentation& last);

    /// Lets a host ask for everything once more.
    void announceAll();

    QString category() const;
    QString id() const;
    QString title() const;
    QString status() const;
    int windowId() const;
    QString noText() const;
    QString iconName() const;
    QList<NotifierPixmap> iconPixmap() const;
    QList<NotifierPixmap> noPixmap() const;
    QString attentionIconName() const;
    QList<NotifierPixmap> attentionIconPixmap() const;
    NotifierToolTip toolTip() const;
    bool itemIsMenu() const;
    QDBusObjectPath menu() const;
    uint orderingIndex() const;

public Q_SLOTS:
    void ContextMenu(int x, int y);
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void XAyatanaSecondaryActivate(uint timestamp);
    void Scroll(int delta, const QString& orientation);
    void ProvideXdgActivationToken(const QString& token);

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewAttentionIcon();
    void NewOverlayIcon();
    void NewToolTip();
    void NewStatus(const QString& status);
    void XAyatanaNewLabel(const QString& label, const QString& guide);

protected:
    const Presentation& presentation() const;

private:
    void announceAttention(const Presentation& last);
    QList<NotifierPixmap> pixmapsOf(const Picture& picture) const;

    const Presentation& m_announced;
    StatusPictures& m_pictures;
    Requests m_requests;
};

/// The same with a label. Some hosts take any label, even an empty one, as a request for no icon.
class LabelledItemAdaptor final : public NotifierItemAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem") // is not inherited
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)

public:
    using NotifierItemAdaptor::NotifierItemAdaptor;

    QString label() const;
    QString labelGuide() const;
};

/// The picture as it goes over the bus.
NotifierPixmap notifierPixmap(const Pixels& picture);

} // namespace quindle
