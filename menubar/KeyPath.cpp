#include "menubar/KeyPath.h"

#include <QObject>

namespace quindle {

namespace {

bool holdsObject(const QVariant& value)
{
    return value.metaType().flags().testFlag(QMetaType::PointerToQObject);
}

} // namespace

KeyPath::KeyPath(const QString& text)
    : m_text(text)
{
    for (const QString& name : text.split(u'.'))
        m_steps.push_back({name.toUtf8(), nullptr, {}});
}

const QMetaProperty& KeyPath::find(const Step& step, const QObject* object)
{
    const QMetaObject* meta = object->metaObject();
    if (step.owner != meta) {
        step.owner = meta;
        step.property = meta->property(meta->indexOfProperty(step.name.constData()));
    }
    return step.property;
}

KeyPathValue KeyPath::read(const Step& step, const QObject* object)
{
    if (!object)
        return {};
    const QMetaProperty& property = find(step, object);
    if (!property.isValid())
        return {KeyPathValue::State::Unknown, {}};
    return {KeyPathValue::State::Found, property.read(object)};
}

KeyPathValue KeyPath::resolve(const QObject* root) const
{
    KeyPathValue found = read(m_steps.front(), root);
    for (std::size_t i = 1; i < m_steps.size() && found.state == KeyPathValue::State::Found; ++i) {
        if (!found.value.isValid())
            return {};
        if (!holdsObject(found.value))
            return {KeyPathValue::State::Unknown, {}};
        found = read(m_steps[i], found.value.value<QObject*>());
    }
    return found;
}

QMetaProperty KeyPath::property(std::size_t index, const QObject* object) const
{
    return find(m_steps[index], object);
}

std::vector<QObject*> KeyPath::objects(QObject* root) const
{
    std::vector<QObject*> objects;
    QObject* object = root;
    for (const Step& step : m_steps) {
        if (!object)
            break;
        objects.push_back(object);
        const QVariant value = read(step, object).value;
        object = holdsObject(value) ? value.value<QObject*>() : nullptr;
    }
    return objects;
}

} // namespace quindle
