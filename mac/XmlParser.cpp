#include "mac/XmlParser.h"

#include <limits>
#include <memory>

#include <QString>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include "mac/XMLData.h"

namespace quindle {

namespace {

struct ContextFree
{
    void operator()(xmlParserCtxtPtr context) const
    {
        // Not freed with the context.
        if (context->myDoc)
            xmlFreeDoc(context->myDoc);
        xmlFreeParserCtxt(context);
    }
};
using ContextPointer = std::unique_ptr<xmlParserCtxt, ContextFree>;

QString textOf(const xmlChar* bytes, qsizetype length = -1)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(bytes), length);
}

void startElement(void* delegate, const xmlChar* localName, const xmlChar* prefix, const xmlChar* /*uri*/,
                  int /*namespaceCount*/, const xmlChar** /*namespaces*/, int /*attributeCount*/,
                  int /*defaultedCount*/, const xmlChar** /*attributes*/)
{
    const QString name = textOf(localName);
    static_cast<XMLData*>(delegate)->didStartElement(prefix ? textOf(prefix) + u':' + name : name);
}

void characters(void* delegate, const xmlChar* bytes, int length)
{
    static_cast<XMLData*>(delegate)->foundCharacters(textOf(bytes, length));
}

// Literal sections are events of their own, which the delegate ignores; without a handler they would arrive
// as characters.
void ignoreLiteralSection(void* /*delegate*/, const xmlChar* /*bytes*/, int /*length*/) {}

// Without a handler faults are printed.
void ignoreFault(void* /*delegate*/, xmlErrorPtr /*fault*/) {}

// No handler declares or finds entities: the document's own stay unknown, so none is expanded.
xmlSAXHandler handlers()
{
    xmlSAXHandler sax{};
    sax.initialized = XML_SAX2_MAGIC;
    sax.startElementNs = startElement;
    sax.characters = characters;
    // Blanks between elements replace a name that came before them, as any piece of text does.
    sax.ignorableWhitespace = characters;
    sax.cdataBlock = ignoreLiteralSection;
    sax.serror = ignoreFault;
    return sax;
}

} // namespace

bool parseXml(const QByteArray& document, XMLData& delegate)
{
    // The library counts in int.
    if (document.isEmpty() || document.size() > std::numeric_limits<int>::max())
        return false;
    const ContextPointer context(
        xmlCreateMemoryParserCtxt(document.constData(), static_cast<int>(document.size())));
    if (!context)
        return false;
    // A document type may name an address, which parsing must not contact.
    xmlCtxtUseOptions(context.get(), XML_PARSE_NONET);
    *context->sax = handlers();
    context->userData = &delegate;
    return xmlParseDocument(context.get()) == 0 && context->wellFormed != 0;
}

} // namespace quindle
