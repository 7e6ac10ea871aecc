#include "menubar/KeyPathWatcher.h"

#include <algorithm>

#include <QMetaProperty>

namespace quindle {

KeyPathWatcher::KeyPathWatcher(const KeyPath& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
}

void KeyPathWatcher::setRoot(QObject* root)
{
    m_root = root;
    update();
}

void KeyPathWatcher::update()
{
    const std::vector<QObject*> objects = m_path.objects(m_root);
    if (!std::equal(objects.begin(), objects.end(), m_watched.begin(), m_watched.end()))
        watch(objects);
    setCurrent(m_path.resolve(m_root));
}

// The owner of an object that goes may still hold its pointer, so nothing is read until it tells of a change.
void KeyPathWatcher::forget()
{
    setCurrent({});
}

void KeyPathWatcher::watch(const std::vector<QObject*>& objects)
{
    for (const QPointer<QObject>& object : m_watched) {
        if (object)
            object->disconnect(this);
    }
    m_watched.assign(objects.begin(), objects.end());

    const QMetaMethod updateSlot = staticMetaObject.method(staticMetaObject.indexOfSlot("update()"));
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const QMetaProperty property = m_path.property(i, objects[i]);
        if (property.hasNotifySignal())
            connect(objects[i], property.notifySignal(), this, updateSlot);
        connect(objects[i], &QObject::destroyed, this, &KeyPathWatcher::forget);
    }
}

void KeyPathWatcher::setCurrent(const KeyPathValue& value)
{
    if (value == m_current)
        return;
    m_current = value;
    Q_EMIT changed();
}

} // namespace quindle
