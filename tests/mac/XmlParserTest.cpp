#include "mac/XmlParser.h"

#include <gtest/gtest.h>

#include "mac/XMLData.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

/// What the delegate has of the name after parsing `document`, whether that succeeds or not.
std::optional<QString> nameIn(const QByteArray& document)
{
    XMLData data(QStringLiteral("F5YX"));
    parseXml(document, data);
    return data.name();
}

bool parses(const QByteArray& document)
{
    XMLData data(QStringLiteral("F5YX"));
    return parseXml(document, data);
}

TEST(XmlParser, TextIsCutAtReferences)
{
    EXPECT_EQ(nameIn("<r><name>A &amp; B</name></r>"), QStringLiteral(" B"));
    EXPECT_EQ(nameIn("<r><name>A &amp;</name></r>"), QStringLiteral("&"));
    EXPECT_EQ(nameIn("<r><name>A &#40;</name></r>"), QStringLiteral("("));
    EXPECT_EQ(nameIn("<r><name>A<b/>B</name></r>"), QStringLiteral("A"));
    EXPECT_EQ(nameIn("<r><name>A<!-- b -->B</name></r>"), QStringLiteral("B"));
}

TEST(XmlParser, BlanksAfterEndTagsAreText)
{
    EXPECT_EQ(nameIn("<r><name>A</name>\n  </r>"), QStringLiteral("\n  "));
    EXPECT_EQ(nameIn("<r><name>A</name></r>\n"), QStringLiteral("A"));
    EXPECT_EQ(nameIn("<!DOCTYPE r [<!ELEMENT r (name)>]><r><name>A</name>\n</r>"), QStringLiteral("\n"));
}

TEST(XmlParser, NamesKeepTheirPrefix)
{
    EXPECT_EQ(nameIn("<r xmlns:p='u'><p:name>A</p:name></r>"), std::nullopt);
    EXPECT_EQ(nameIn("<r xmlns='u'><name>A</name></r>"), QStringLiteral("A"));
}

TEST(XmlParser, OnlyWellFormedDocumentsSucceed)
{
    for (const char* document : {"<r/>", "<?xml version='1.0' encoding='UTF-8'?><r>a</r>", "<r>&lt;</r>",
                                 "<!DOCTYPE r SYSTEM 'http://127.0.0.1:1/none.dtd'><r/>"})
        EXPECT_TRUE(parses(document)) << document;
    for (const char* document :
         {"", " ", "x", "<r>", "<r></q>", "<r/><r/>", "<r>&none;</r>", "<r>&</r>", "<r>\xff</r>", "<r a=1/>",
          "<r>\x01</r>", "<?xml version='1.0' encoding='none'?><r/>"})
        EXPECT_FALSE(parses(document)) << document;
}

TEST(XmlParser, EntitiesOfTheDocumentAreNotExpanded)
{
    EXPECT_EQ(nameIn("<!DOCTYPE r [<!ENTITY e 'x'>]><r><name>&e;</name></r>"), std::nullopt);
    EXPECT_EQ(nameIn("<!DOCTYPE r [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><r><name>&e;</name></r>"),
              std::nullopt);
    QByteArray manyfold("<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaa'>");
    for (char letter = 'b'; letter <= 'z'; ++letter)
        manyfold += "<!ENTITY " + QByteArray(1, letter) + " '" +
                    QByteArray("&_;").replace('_', static_cast<char>(letter - 1)).repeated(10) + "'>";
    EXPECT_EQ(nameIn(manyfold + "]><r a='&z;'><name>&z;</name></r>"), std::nullopt);
}

TEST(XmlParser, DepthIsBounded)
{
    EXPECT_FALSE(parses(QByteArray("<r>").repeated(100'000) + QByteArray("</r>").repeated(100'000)));
}

} // namespace
