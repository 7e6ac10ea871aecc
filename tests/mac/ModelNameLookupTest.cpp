#include "mac/ModelNameLookup.h"

#include <gtest/gtest.h>

#include "mac/QDMac.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

const QString address = QStringLiteral("http://info.test/sp/product?cc=F5YX&lang=en_US");
const QByteArray reply = "<root><configCode>iMac (Retina 5K, Late 2014)</configCode></root>";

struct ModelNameLookup : testing::Test
{
    void setHost(const QVariant& host)
    {
        computer.bundle.info->insert(QStringLiteral("QDProductInformationHost"), host);
    }

    std::optional<QString> lookUp()
    {
        return onlineModelText(QStringLiteral("F5YX"), computer.bundle, computer.urlSession);
    }

    FakePlatform computer;
};

TEST_F(ModelNameLookup, AddressOfTheRequest)
{
    EXPECT_EQ(productInformationAddress(QStringLiteral("info.test"), QStringLiteral("F5YX")), address);
    EXPECT_EQ(productInformationAddress({}, QStringLiteral("IJK")),
              QStringLiteral("http:///sp/product?cc=IJK&lang=en_US"));
}

TEST_F(ModelNameLookup, TheHostIsTheBundles)
{
    EXPECT_EQ(productInformationHost(computer.bundle), QString());
    setHost(5);
    EXPECT_EQ(productInformationHost(computer.bundle), QString());
    setHost(QStringLiteral("info.test:8080"));
    EXPECT_EQ(productInformationHost(computer.bundle), QStringLiteral("info.test:8080"));
    computer.bundle.info.reset();
    EXPECT_EQ(productInformationHost(computer.bundle), QString());
}

TEST_F(ModelNameLookup, AsksOnceAndTakesTheParenthesisedPart)
{
    setHost(QStringLiteral("info.test"));
    computer.urlSession.answers[address] = reply;
    EXPECT_EQ(lookUp(), QStringLiteral("(Retina 5K, Late 2014)"));
    EXPECT_EQ(computer.urlSession.asked, QStringList{address});
}

TEST_F(ModelNameLookup, FailuresGiveNothing)
{
    setHost(QStringLiteral("info.test"));
    EXPECT_EQ(lookUp(), std::nullopt);
    for (const char* answer :
         {"", "<root/>", "<root><configCode>iMac</configCode></root>", "<root><configCode>(x)"}) {
        computer.urlSession.answers[address] = answer;
        EXPECT_EQ(lookUp(), std::nullopt) << answer;
    }
}

TEST_F(ModelNameLookup, TheComputerAsksAtItsStartAndNotAgain)
{
    setHost(QStringLiteral("info.test"));
    computer.setComputer(QStringLiteral("iMac15,1"), QStringLiteral("C02MN1TXF5YX"));
    computer.urlSession.answers[address] = reply;
    EXPECT_EQ(QDMac::init(computer.platform)->LongModel(), QStringLiteral("(5K, Late 2014)"));
    EXPECT_EQ(QDMac::init(computer.platform)->LongModel(), QStringLiteral("(5K, Late 2014)"));
    EXPECT_EQ(computer.urlSession.asked, QStringList{address});
    EXPECT_EQ(computer.userDefaults.standardDefaults.dictionary(QStringLiteral("modelStringCache")),
              (QVariantMap{{QStringLiteral("F5YX"), QStringLiteral("(Retina 5K, Late 2014)")}}));
}

TEST(ParenthesisedText, Cases)
{
    const struct
    {
        QString name;
        std::optional<QString> part;
    } cases[] = {
        {QStringLiteral("MacBook Air (13-inch, Early 2014)"), QStringLiteral("(13-inch, Early 2014)")},
        {QStringLiteral("A (x) B (y)"), QStringLiteral("(x) B (y)")},
        {QStringLiteral("A (x) B (y"), QStringLiteral("(x)")},
        {QStringLiteral("((x"), std::nullopt},
        {QStringLiteral("A ()"), std::nullopt},
        {QStringLiteral("A ())"), QStringLiteral("())")},
        {QStringLiteral(")("), std::nullopt},
        {QStringLiteral(")(x)"), QStringLiteral("(x)")},
        {QStringLiteral("(x\ny)"), std::nullopt},
        {QStringLiteral("(x\ny) (z)"), QStringLiteral("(z)")},
        {QStringLiteral("\n\n(z)\n"), QStringLiteral("(z)")},
        {QStringLiteral("(x\u2028y)"), std::nullopt},
        {QStringLiteral("(x\u0085y)"), std::nullopt},
        {QStringLiteral("(x\r\ny)"), std::nullopt},
        {QStringLiteral("(x\ty)"), QStringLiteral("(x\ty)")},
        {QStringLiteral("(\u00e9)"), QStringLiteral("(\u00e9)")},
        {QString(), std::nullopt},
    };
    for (const auto& [name, part] : cases)
        EXPECT_EQ(parenthesisedText(name), part) << name.toStdString();
}

} // namespace
