#pragma once

#include <vector>

#include <QLatin1StringView>
#include <QVariant>

namespace quindle {

/// A property list as its encoding stores it: numbered nodes that refer to each other, each read only when
/// asked for. Unlike a tree of values it does not multiply what a file refers to more than once, and it keeps
/// the references (UIDs) of keyed archives.
class PropertyListGraph
{
public:
    using Node = quint64;

    enum class Kind : quint8 {
        Missing, ///< nothing was looked up
        Invalid, ///< broken in the file
        Null,
        Boolean,
        Integer,
        Real,
        Date,
        Data,
        Text,
        Reference,
        Array,
        Dictionary,
    };

    /// What stands at a node. Looked up once, it answers everything else about the node.
    struct Element
    {
        Kind kind = Kind::Missing;
        quint8 form = 0;   ///< for the encoding's own use
        quint64 start = 0; ///< for the encoding's own use
        quint64 count = 0; ///< the items of an array, the entries of a dictionary
    };

    /// No node: what is beyond the end, or missing.
    static constexpr Node noNode = ~Node{0};

    virtual ~PropertyListGraph() = default;

    /// Invalid when the bytes are no property list of this encoding.
    virtual Element root() const = 0;

    virtual Element element(Node node) const = 0;

    /// The value of anything from `Boolean` to `Text`, of the types of common/PropertyList.h; invalid for
    /// every other kind and for what is broken.
    virtual QVariant value(const Element& element) const = 0;

    /// The number that a reference holds; `noNode` of every other kind.
    virtual quint64 reference(const Element& element) const = 0;

    virtual Node item(const Element& array, quint64 index) const = 0;

    /// Adds the numbers that the items of an array hold; false when it is none, or not of references alone.
    virtual bool addReferences(const Element& array, std::vector<quint64>& references) const = 0;

    virtual Node key(const Element& dictionary, quint64 index) const = 0;
    virtual Node entry(const Element& dictionary, quint64 index) const = 0;

    virtual bool isText(const Element& element, QLatin1StringView text) const = 0;
};

} // namespace quindle
