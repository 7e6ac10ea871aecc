#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QString>
#include <QStringList>
#include <QVariant>

#include "menubar/KeyPath.h"

namespace quindle {

/// A text with fields, e.g. "{Battery.StateOfHealth:percent} · {Battery.BatteryHealth}". A field is a key
/// path with an optional format of ValueTexts; of several paths ("{LongModel|Model}") the first that tells
/// something is taken.
///
/// Parts between " · " whose fields all tell nothing are left out; a field that tells nothing beside others
/// that do is written as an en dash.
class DisplayPattern
{
public:
    using Resolver = std::function<QVariant(const KeyPath&)>;

    explicit DisplayPattern(const QString& pattern);

    /// The text with the values that `resolve` gives; nothing when the fields tell nothing at all.
    std::optional<QString> text(const Resolver& resolve) const;

    /// Every key path in it, in order.
    std::vector<KeyPath> paths() const;

    /// The formats in it that do not exist.
    QStringList unknownFormats() const;

private:
    struct Field
    {
        std::vector<KeyPath> paths;
        QString format;
    };
    struct Piece
    {
        QString literal; ///< stands before the field
        std::optional<Field> field;
    };
    using Part = std::vector<Piece>;

    static Part parsePart(const QString& text);
    static Field parseField(const QString& text);
    static std::optional<QString> partText(const Part& part, const Resolver& resolve);
    static QString fieldText(const Field& field, const Resolver& resolve);

    std::vector<Part> m_parts;
};

/// What stands where a value is missing.
QString missingValueText();

} // namespace quindle
