#pragma once

#include <functional>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QString>

#include "platform/linux/statusitem/MenuTypes.h"
#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

/// The status item as its host sees it, over a connection to the helper alone. Nothing waits for the helper.
class RemoteItem final : public QObject
{
    Q_OBJECT

public:
    explicit RemoteItem(const QDBusConnection& helper);

    /// Asks for everything that is shown; the signals below follow.
    void start();

    /// Says that the icon was clicked; `place` is on the screen.
    void activate(const QPoint& place);

    /// Asks for the menu as it is now. `answered` gets it, if an answer comes.
    void askForMenu(std::function<void(const quindle::MenuNode& menu)> answered);

    /// Says that this row of the menu was chosen.
    void choose(int id);

Q_SIGNALS:
    /// There is a new picture, in every size that a tray may have room for.
    void pixmapsChanged(const QList<quindle::NotifierPixmap>& pixmaps);

    /// There is a new tool tip: plain text, or markup if it looks like it.
    void toolTipChanged(const QString& text);

    void menuRowsChanged(const QList<quindle::MenuRowProperties>& rows);

    /// The helper has closed the connection or ended.
    void gone();

private Q_SLOTS:
    void askForPixmaps();
    void askForToolTip();
    void hearMenuRows(const QDBusMessage& message);

private:
    using Answered = std::function<void(const QList<QVariant>& answer)>;

    void listen(const char* path, const char* interface, const char* signal, const char* slot);
    void askForProperty(const char* name, const std::function<void(const QVariant&)>& answered);
    void call(const QDBusMessage& message, const Answered& answered);

    QDBusConnection m_helper;
};

} // namespace quindle
