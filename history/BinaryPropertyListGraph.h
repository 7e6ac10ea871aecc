#pragma once

#include <QByteArray>

#include "common/BinaryPropertyListObjects.h"
#include "history/PropertyListGraph.h"

namespace quindle {

/// The binary encoding. Nothing is copied out of the bytes before it is asked for.
class BinaryPropertyListGraph : public PropertyListGraph
{
public:
    explicit BinaryPropertyListGraph(const QByteArray& bytes);

    static bool isBinary(const QByteArray& bytes);

    Element root() const override;
    Element element(Node node) const override;
    QVariant value(const Element& element) const override;
    quint64 reference(const Element& element) const override;
    Node item(const Element& array, quint64 index) const override;
    bool addReferences(const Element& array, std::vector<quint64>& references) const override;
    Node key(const Element& dictionary, quint64 index) const override;
    Node entry(const Element& dictionary, quint64 index) const override;
    bool isText(const Element& element, QLatin1StringView text) const override;

private:
    Node nodeAt(const Element& container, quint64 index) const;
    const char* content(const Element& element) const;
    QVariant integer(const Element& element) const;
    QVariant real(const Element& element) const;
    QVariant date(const Element& element) const;
    QVariant text(const Element& element) const;

    BinaryPropertyListObjects m_objects;
};

} // namespace quindle
