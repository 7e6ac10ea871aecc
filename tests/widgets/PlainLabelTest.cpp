#include "widgets/PlainLabel.h"

#include <QFont>
#include <QImage>
#include <gtest/gtest.h>

using namespace quindle;

namespace {

/// The rows of pixels that a label of that height has ink in.
int inkedRows(PlainLabel& label, int height)
{
    label.setFixedSize(label.sizeHint().width(), height);
    QImage image(label.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    label.render(&image, {}, {}, QWidget::DrawChildren);
    int rows = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                ++rows;
                break;
            }
    return rows;
}

/// Marks of direction, and letters, may be in no font but a taller one.
TEST(PlainLabel, WhatComesFromAnotherFontIsWhole)
{
    for (const char* family : {"DejaVu Sans", "Noto Sans", "Liberation Sans"})
        for (const QString& text : {QStringLiteral(u"\u2068\u064A\u0648\u0645 \u062C\u062D\u2069"),
                                    QStringLiteral(u"\u2068quick\u2069"), QStringLiteral("quick")}) {
            PlainLabel label;
            label.setFont(QFont(QString::fromLatin1(family)));
            label.setAlignment(Qt::AlignLeft);
            label.setText(text);
            const int height = label.sizeHint().height();
            const int whole = inkedRows(label, height * 2);
            EXPECT_GT(whole, 0);
            EXPECT_EQ(inkedRows(label, height), whole) << family << ": " << text.toStdString();
        }
}

} // namespace
