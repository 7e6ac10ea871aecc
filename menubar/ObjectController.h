#pragma once

#include <functional>

#include <QPointer>

class QObject;

namespace quindle {

/// Holds the object that an interface is bound to by key paths.
class ObjectController
{
public:
    /// Sets the content object, which the controller does not own.
    void addObject(QObject* object);

    /// Null before one was added, and after it was destroyed.
    QObject* content() const { return m_content; }

    /// The one observer of `addObject`.
    void setObserver(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    QPointer<QObject> m_content;
    std::function<void()> m_changed;
};

} // namespace quindle
