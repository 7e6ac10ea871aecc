#pragma once

#include <vector>

#include <QLatin1StringView>
#include <QVariant>

namespace quindle {

/// A property list as its encoding stores it: numbered nodes that refer to each other, each read only when
/// asked for. Unlike a tree of values it does not multiply what a file refers to more than once, and it keeps
/// the references (UIDs) of keyed archives. A node that is broken in the file is `Invalid`.
class PropertyListGraph
{
public:
    using Node = quint64;

    enum class Kind { Invalid, Null, Boolean, Integer, Real, Date, Data, Text, Reference, Array, Dictionary };

    /// No node: what is beyond the end, or missing.
    static constexpr Node noNode = ~Node{0};

    virtual ~PropertyListGraph() = default;

    /// `noNode` when the bytes are no property list of this encoding.
    virtual Node root() const = 0;

    virtual Kind kind(Node node) const = 0;

    /// The value of anything from `Boolean` to `Text`, of the types of common/PropertyList.h; invalid for
    /// every other kind and for what is broken.
    virtual QVariant value(Node node) const = 0;

    /// The number that a reference holds.
    virtual quint64 reference(Node node) const = 0;

    /// The items of an array, the entries of a dictionary; 0 for every other kind.
    virtual quint64 count(Node node) const = 0;

    virtual Node item(Node array, quint64 index) const = 0;

    /// Adds the numbers that the items of an array hold; false when it is none, or not of references alone.
    virtual bool addReferences(Node array, std::vector<quint64>& references) const = 0;

    virtual Node key(Node dictionary, quint64 index) const = 0;
    virtual Node entry(Node dictionary, quint64 index) const = 0;

    virtual bool isText(Node node, QLatin1StringView text) const = 0;
};

} // namespace quindle
