#pragma once

#include <vector>

#include <QByteArray>
#include <QMetaProperty>
#include <QString>
#include <QVariant>

class QObject;

namespace quindle {

/// What a key path found.
struct KeyPathValue
{
    enum class State {
        Found,   ///< `value` is the property's; it may itself be invalid (a text that is missing)
        Null,    ///< the root or an object on the way is null
        Unknown, ///< an object on the way has no such property, or it holds something that is not an object
    };

    State state = State::Null;
    QVariant value;

    bool operator==(const KeyPathValue& other) const = default;
};

/// Names of properties joined by points ("Battery.StateOfCharge"): each but the last holds a QObject that has
/// the next one. Main thread only.
class KeyPath
{
public:
    explicit KeyPath(const QString& text);

    const QString& text() const { return m_text; }
    /// Reads the value now, starting at `root`.
    KeyPathValue resolve(const QObject* root) const;

    /// The property that the step at `index` (0: the first name) reads from `object`; not valid when it has
    /// none.
    QMetaProperty property(std::size_t index, const QObject* object) const;

    /// The objects that `resolve` would read from, `root` first; ends at the first one that is null or
    /// unknown.
    std::vector<QObject*> objects(QObject* root) const;

private:
    /// One name, and where it was found last: looking a name up costs more than reading the property.
    struct Step
    {
        QByteArray name;
        mutable const QMetaObject* owner = nullptr;
        mutable QMetaProperty property;
    };

    static KeyPathValue read(const Step& step, const QObject* object);
    static const QMetaProperty& find(const Step& step, const QObject* object);

    QString m_text;
    std::vector<Step> m_steps;
};

} // namespace quindle
