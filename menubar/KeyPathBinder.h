#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QObject>
#include <QStringList>

class QWidget;

namespace quindle {

class DisplayPattern;
class KeyPath;
class KeyPathWatcher;
class ObjectController;

/// Joins the widgets of an interface file to the properties of a controller's content. What a widget shows is
/// said by dynamic properties of its own:
///
///   keyPath          a key path whose value is shown as it is, in the widget's USER property, its text, or
///                    the property named by keyPathProperty
///   displayPattern   a DisplayPattern shown there; an en dash when it tells nothing
///   captionPattern   one shown in the property `caption`, which stays as it is when it tells nothing
///   toolTipPattern   one shown as tool tip, literally
///   visibleKeyPath   key paths, separated by commas: visible when one of them tells something
///   enabledKeyPath   the same for enabled
///   clickKeyPath     the object at the path before the last point has an invokable method of the last name;
///                    the widget's signal clicked() calls it
///
/// Everything shown follows the properties until the binder is gone. It is the controller's one observer.
class KeyPathBinder : public QObject
{
    Q_OBJECT

public:
    KeyPathBinder(QWidget& root, ObjectController& controller, QObject* parent = nullptr);
    ~KeyPathBinder() override;

    /// Every key path that is bound, in alphabetical order.
    QStringList paths() const;

    /// The paths that name something that is not there, and formats that do not exist. A path behind a null
    /// object cannot be told and is not among them.
    QStringList unresolved() const;

private Q_SLOTS:
    void performClick();

private:
    void bind(QWidget* widget);
    void bindKeyPath(QWidget* widget, const QString& path);
    void bindPattern(QWidget* widget, const QString& text,
                     const std::function<void(const DisplayPattern&)>& show);
    void bindCondition(const QString& paths, const std::function<void(bool)>& apply);
    void bindClick(QWidget* widget, const QString& path);
    void setContent();

    KeyPathWatcher* watch(const KeyPath& path);
    QVariant valueOf(const KeyPath& path) const;

    ObjectController& m_controller;
    std::map<QString, KeyPathWatcher*> m_watchers;
    QStringList m_clickPaths;
    QStringList m_unknownFormats;
};

} // namespace quindle
