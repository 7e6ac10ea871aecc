#include "widgets/IsolatedCells.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"
#include "tests/support/TestTranslation.h"

using namespace quindle;

namespace {

TEST(IsolatedCells, HaveADirectionOfTheirOwnFromRightToLeftOnly)
{
    const QString text = QStringLiteral("-1290");
    EXPECT_EQ(IsolatedCells().displayText(text, QLocale::c()), text);
    const TestTranslation arabic(QStringLiteral("C"), QStringLiteral("ar_EG"));
    EXPECT_EQ(IsolatedCells().displayText(text, QLocale::c()), QStringLiteral(u"\u2068-1290\u2069"));
}

} // namespace
