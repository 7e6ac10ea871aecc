#include "widgets/AccessiblePopups.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

namespace quindle {

namespace {

bool isExposed(const QWindow& window)
{
    // Only the open popups: they are made anew each time, and closed ones belong to nothing.
    return window.type() == Qt::Popup ? window.isVisible() : window.type() != Qt::Desktop;
}

/// The toolkit's accessible application, with popups among its children.
class AccessibleApplication final : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface* parent() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Application; }
    QAccessible::State state() const override { return {}; }
    int childCount() const override { return static_cast<int>(windows().size()); }
    QAccessibleInterface* child(int index) const override { return windows().value(index); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(windows().indexOf(child));
    }

    QAccessibleInterface* focusChild() const override
    {
        QWindow* focused = QGuiApplication::focusWindow();
        return focused ? focused->accessibleRoot() : nullptr;
    }

    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Name ? QCoreApplication::applicationName() : QString();
    }

private:
    static QList<QAccessibleInterface*> windows()
    {
        QList<QAccessibleInterface*> found;
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            QAccessibleInterface* root = isExposed(*window) ? window->accessibleRoot() : nullptr;
            if (root && root->object())
                found.append(root);
        }
        return found;
    }
};

QAccessibleInterface* accessibleApplication(const QString& className, QObject* object)
{
    const bool isApplication = object == QCoreApplication::instance() && className == u"QGuiApplication";
    return isApplication ? new AccessibleApplication(object) : nullptr;
}

} // namespace

void exposePopups()
{
    QAccessible::installFactory(accessibleApplication);
}

} // namespace quindle
