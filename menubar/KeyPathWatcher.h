#pragma once

#include <vector>

#include <QObject>
#include <QPointer>

#include "menubar/KeyPath.h"

namespace quindle {

/// Keeps the value of a key path: watches the NOTIFY signal of every property on the way, and starts anew at
/// the objects that stand there now when one of them is replaced.
class KeyPathWatcher : public QObject
{
    Q_OBJECT

public:
    explicit KeyPathWatcher(const KeyPath& path, QObject* parent = nullptr);

    /// Starts at another object; null for none. The watcher does not own it, and may outlive it.
    void setRoot(QObject* root);

    const KeyPath& path() const { return m_path; }
    const KeyPathValue& current() const { return m_current; }

Q_SIGNALS:
    /// The value is another one.
    void changed();

private Q_SLOTS:
    void update();
    void forget();

private:
    void watch(const std::vector<QObject*>& objects);
    void setCurrent(const KeyPathValue& value);

    KeyPath m_path;
    QPointer<QObject> m_root;
    std::vector<QPointer<QObject>> m_watched;
    KeyPathValue m_current;
};

} // namespace quindle
