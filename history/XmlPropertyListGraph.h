#pragma once

#include <vector>

#include <QByteArray>

#include "history/PropertyListGraph.h"

QT_BEGIN_NAMESPACE
class QXmlStreamReader;
QT_END_NAMESPACE

namespace quindle {

/// The XML encoding. A dictionary of the one key "CF$UID" is a reference.
class XmlPropertyListGraph : public PropertyListGraph
{
public:
    explicit XmlPropertyListGraph(const QByteArray& bytes);

    Node root() const override { return m_root; }
    Kind kind(Node node) const override;
    QVariant value(Node node) const override;
    quint64 reference(Node node) const override;
    quint64 count(Node node) const override;
    Node item(Node array, quint64 index) const override;
    bool addReferences(Node array, std::vector<quint64>& references) const override;
    Node key(Node dictionary, quint64 index) const override;
    Node entry(Node dictionary, quint64 index) const override;
    bool isText(Node node, QLatin1StringView text) const override;

private:
    struct Element
    {
        Kind kind = Kind::Invalid;
        QVariant value;         ///< of a scalar, and the number of a reference
        quint64 firstChild = 0; ///< in m_children; keys and values of a dictionary take turns
        quint64 childCount = 0;
    };
    struct OpenElement
    {
        Kind kind = Kind::Invalid;
        std::vector<Node> children;
    };

    bool readElements(QXmlStreamReader& xml);
    bool begin(QXmlStreamReader& xml);
    bool addScalar(QXmlStreamReader& xml, QStringView name);
    bool end();
    void add(Element element);
    Element closed(const OpenElement& container);
    const Element* element(Node node) const;
    Node child(Node node, Kind kind, quint64 index) const;

    std::vector<Element> m_elements;
    std::vector<Node> m_children;
    std::vector<OpenElement> m_open;
    Node m_root = noNode;
};

} // namespace quindle
