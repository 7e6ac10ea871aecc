// quindle-render-masks ICONS MASKS STAMP: draws each icon's shape in the sizes that trays ask for, as grey
// pictures one after the other in the file NAME.pgm. The drawings are NAME-symbolic.svg in the folder ICONS,
// made on 22 pixels, and in its folder "16", made on 16. The stamp is written when all is done. Part of the
// build only.

#include <array>
#include <cstdio>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

/// 22 and its double keep the drawing's pixels; 32 is for panels that scale nothing.
constexpr std::array sizes{16, 22, 32, 44};

/// The small drawing leaves no room for a plate around it, so it is only for the size in which the other's
/// lines would be less than a pixel wide.
constexpr int smallDrawing = 16;

constexpr auto ending = "-symbolic.svg";

/// Empty for a drawing that cannot be read.
QByteArray greyPicture(const QString& drawing, int size)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return {};
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        renderer.render(&painter, QRectF(0, 0, size, size));
    }
    const QByteArray side = QByteArray::number(size);
    QByteArray grey = "P5\n" + side + ' ' + side + "\n255\n";
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            grey += static_cast<char>(qAlpha(picture.pixel(x, y)));
    }
    return grey;
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool render(const QString& icons, const QString& drawing, const QString& masks)
{
    QByteArray pictures;
    for (const int size : sizes) {
        const QString folder = size == smallDrawing ? icons + QStringLiteral("/16/") : icons + u'/';
        const QByteArray picture = greyPicture(folder + drawing, size);
        if (picture.isEmpty())
            return false;
        pictures += picture;
    }
    const QString name = drawing.chopped(QLatin1String(ending).size());
    return write(masks + u'/' + name + QStringLiteral(".pgm"), pictures);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    const QString icons = QString::fromLocal8Bit(argv[1]);
    const QDir small(icons + QStringLiteral("/16"), u'*' + QLatin1String(ending));
    for (const QString& drawing : small.entryList()) {
        if (render(icons, drawing, QString::fromLocal8Bit(argv[2])))
            continue;
        std::fprintf(stderr, "cannot draw %s\n", qPrintable(drawing));
        return 1;
    }
    return write(QString::fromLocal8Bit(argv[3]), {}) ? 0 : 1;
}
