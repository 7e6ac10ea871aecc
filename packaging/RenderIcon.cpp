// quindle-render-icon SVG SIZE PNG: draws an icon for those who cannot draw SVG themselves. Part of the build
// only.

#include <cstdio>

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        renderer.render(&painter);
    }
    if (renderer.isValid() && picture.save(QString::fromLocal8Bit(argv[3]), "PNG"))
        return 0;
    std::fprintf(stderr, "cannot draw %s as %s\n", argv[1], argv[3]);
    return 1;
}
