#include "mac/XMLData.h"

#include "common/FatalError.h"

namespace quindle {

XMLData::XMLData()
{
    fatalError(u"XMLData is made with a part of the serial number");
}

XMLData::XMLData(const QString& /*serialPart*/) {}

void XMLData::didStartElement(const QString& elementName)
{
    m_element = elementName;
}

// inherited: the last piece replaces those before; names in the cache were made that way.
void XMLData::foundCharacters(const QString& characters)
{
    if (m_element == u"name")
        m_name = characters;
    else if (m_element == u"configCode")
        m_configCode = characters;
}

} // namespace quindle
