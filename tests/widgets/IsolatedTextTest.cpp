#include "widgets/IsolatedText.h"

#include <QApplication>
#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(IsolatedText, HasADirectionOfItsOwnFromRightToLeftOnly)
{
    const QString text = QStringLiteral("-1290");
    EXPECT_EQ(isolatedText(text), text);
    EXPECT_EQ(IsolatedCells().displayText(text, QLocale::c()), text);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QString isolated = QStringLiteral(u"\u2068-1290\u2069");
    EXPECT_EQ(isolatedText(text), isolated);
    EXPECT_EQ(IsolatedCells().displayText(text, QLocale::c()), isolated);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
