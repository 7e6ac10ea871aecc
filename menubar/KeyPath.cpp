#include "menubar/KeyPath.h"

#include <QMetaProperty>
#include <QObject>

namespace quindle {

namespace {

KeyPathValue propertyOf(const QObject* object, const QByteArray& name)
{
    if (!object)
        return {};
    const QMetaObject* meta = object->metaObject();
    const int index = meta->indexOfProperty(name.constData());
    if (index < 0)
        return {KeyPathValue::State::Unknown, {}};
    return {KeyPathValue::State::Found, meta->property(index).read(object)};
}

bool holdsObject(const QVariant& value)
{
    return value.metaType().flags().testFlag(QMetaType::PointerToQObject);
}

} // namespace

KeyPath::KeyPath(const QString& text)
    : m_text(text)
{
    for (const QString& name : text.split(u'.'))
        m_names.push_back(name.toUtf8());
}

KeyPathValue KeyPath::resolve(const QObject* root) const
{
    KeyPathValue found = propertyOf(root, m_names.front());
    for (std::size_t i = 1; i < m_names.size() && found.state == KeyPathValue::State::Found; ++i) {
        if (!found.value.isValid())
            return {};
        if (!holdsObject(found.value))
            return {KeyPathValue::State::Unknown, {}};
        found = propertyOf(found.value.value<QObject*>(), m_names[i]);
    }
    return found;
}

std::vector<QObject*> KeyPath::objects(QObject* root) const
{
    std::vector<QObject*> objects;
    QObject* object = root;
    for (const QByteArray& name : m_names) {
        if (!object)
            break;
        objects.push_back(object);
        const QVariant value = propertyOf(object, name).value;
        object = holdsObject(value) ? value.value<QObject*>() : nullptr;
    }
    return objects;
}

} // namespace quindle
