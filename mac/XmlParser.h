#pragma once

#include <QByteArray>

namespace quindle {

class XMLData;

/// Parses a document and passes `delegate` each start tag and each piece of text, cut where the text has a
/// reference; blanks between elements are text too. True for a well-formed document; otherwise the delegate
/// has received what came before the fault. Opens nothing besides `document`, and expands no entity but the
/// five of XML.
bool parseXml(const QByteArray& document, XMLData& delegate);

} // namespace quindle
