#include "platform/linux/statusitem/TextDrawing.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace quindle {
namespace {

QImage blank(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void paintDisc(QPainter& painter, int side)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::red);
    painter.drawEllipse(QRectF(0.3, 0.7, side - 1.1, side - 1.6));
}

int pooledThreads()
{
    int count = 0;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name(tasks.filePath(task) + QStringLiteral("/comm"));
        if (name.open(QIODevice::ReadOnly) && name.readAll().trimmed() == "Thread (pooled)")
            ++count;
    }
    return count;
}

TEST(StripPainting, ThePixelsAreThoseOfOnePainting)
{
    for (const int side : {1, 7, 8, 9, 22, 44, 48}) {
        QImage inStrips = blank(side);
        paintInStrips(inStrips, [side](QPainter& painter) { paintDisc(painter, side); });
        QImage atOnce = blank(side);
        QPainter painter(&atOnce);
        paintDisc(painter, side);
        painter.end();
        EXPECT_EQ(inStrips, atOnce) << side;
    }
}

TEST(StripPainting, NoThreadIsStarted)
{
    QImage image = blank(48);
    paintInStrips(image, [](QPainter& painter) { paintDisc(painter, 48); });
    EXPECT_EQ(pooledThreads(), 0);
}

} // namespace
} // namespace quindle
