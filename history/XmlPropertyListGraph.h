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

    Element root() const override { return element(m_root); }
    Element element(Node node) const override;
    QVariant value(const Element& element) const override;
    quint64 reference(const Element& element) const override;
    Node item(const Element& array, quint64 index) const override;
    bool addReferences(const Element& array, std::vector<quint64>& references) const override;
    Node key(const Element& dictionary, quint64 index) const override;
    Node entry(const Element& dictionary, quint64 index) const override;
    bool isText(const Element& element, QLatin1StringView text) const override;

private:
    struct StoredElement
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
    void add(StoredElement element);
    StoredElement closed(const OpenElement& container);
    const StoredElement& stored(const Element& element) const;
    Node child(const Element& element, quint64 index) const;

    std::vector<StoredElement> m_elements;
    std::vector<Node> m_children;
    std::vector<OpenElement> m_open;
    Node m_root = noNode;
};

} // namespace quindle
