#pragma once

#include <vector>

#include <QByteArray>
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
/// the next one.
class KeyPath
{
public:
    explicit KeyPath(const QString& text);

    const QString& text() const { return m_text; }
    const std::vector<QByteArray>& names() const { return m_names; }

    /// Reads the value now, starting at `root`.
    KeyPathValue resolve(const QObject* root) const;

    /// The objects that `resolve` would read from, `root` first; ends at the first one that is null or
    /// unknown.
    std::vector<QObject*> objects(QObject* root) const;

private:
    QString m_text;
    std::vector<QByteArray> m_names;
};

} // namespace quindle
