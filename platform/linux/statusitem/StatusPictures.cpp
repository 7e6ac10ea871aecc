#include "platform/linux/statusitem/StatusPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <span>

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>

#include "common/FileContents.h"
#include "common/Paths.h"
#include "platform/linux/os/FileReplacement.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/linux/statusitem/TextDrawing.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logPictures, "quindle.statusitem.pictures", QtWarningMsg)

constexpr std::array squareSizes{22, 32, 44};
// Panels that scale give the icon a pixel or two less than their own height.
constexpr std::array wideHeights{16, 18, 20, 22, 24, 26, 28, 30, 32, 36, 40, 44, 48};
constexpr int gridSize = 22;
constexpr int smallGridSize = 16;
// Twice the 21 pixels that the one host of wide pictures gives its icons by default, so that it halves them
// evenly.
constexpr int wideHeight = 42;
constexpr int maximumWideWidth = 2 * 400;

// The menu-bar font of 12 points belongs to a bar of 22 points; panels write 13 px in one of 22 px.
constexpr double panelPixelsPerPoint = 13.0 / 12.0;

constexpr QColor onPlate(255, 255, 255);
constexpr QColor plateColour(24, 26, 30, 190);

std::span<const int> sizesOf(const Picture& picture)
{
    if (picture.kind != Picture::Kind::Wide)
        return squareSizes;
    return picture.inAllHeights ? std::span<const int>(wideHeights) : std::span(&wideHeight, 1);
}

/// The pixels that the drawing for that size is made on. The small one has no room around it for a plate, so
/// it is for the sizes only in which the lines of the other would be less than a pixel wide.
int gridOf(int size)
{
    return size < 20 ? smallGridSize : gridSize;
}

/// By this end of a file's name hosts know drawings that they may colour.
QString symbolic()
{
    return QStringLiteral("-symbolic.svg");
}

/// The colour that the picture is drawn in.
QColor inkOf(const Picture& picture)
{
    return isKnown(picture.ink) ? QColor::fromRgb(picture.ink) : onPlate;
}

QImage blankImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// What the picture is drawn on: nothing, or a dark plate where the panel's colours are unknown. White on it
/// reads on every panel, and a full battery stays the opposite of an empty one; on dark panels it hardly
/// shows.
QImage ground(const Picture& picture, int width, int height)
{
    QImage image = blankImage(width, height);
    if (isKnown(picture.ink))
        return image;
    const int inset = 2 * (height / gridSize);
    const QRect plate = image.rect().adjusted(0, inset, 0, -inset);
    paintInStrips(image, [&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(plateColour);
        painter.drawRoundedRect(plate, height / 5.5, height / 5.5);
    });
    return image;
}

/// The nearest size in which the grid falls on whole pixels.
int onGrid(int size)
{
    const int grid = gridOf(size);
    return grid * std::max(1, qRound(static_cast<double>(size) / grid));
}

QFont panelFont(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(1, pixelSize));
    font.setWeight(QFont::DemiBold);
    return font;
}

/// The font in which the text fills a square of that size but for a pixel of the grid on each side.
QFont fittingFont(const QString& text, int size)
{
    constexpr int trialSize = 100;
    const QRectF trial = QFontMetricsF(panelFont(trialSize)).tightBoundingRect(text);
    const double room = size * (gridSize - 2.0) / gridSize;
    const double scale = std::min(room / std::max(1.0, trial.width()), room / std::max(1.0, trial.height()));
    return panelFont(static_cast<int>(std::min(trialSize * scale, static_cast<double>(size))));
}

QImage squareText(const Picture& picture, int size)
{
    QImage image = ground(picture, size, size);
    QPainter painter(&image);
    painter.setFont(fittingFont(picture.text, size));
    painter.setPen(inkOf(picture));
    const QRectF inked = QFontMetricsF(painter.font()).tightBoundingRect(picture.text);
    // Whole pixels: a baseline between two of them blurs every figure's foot.
    const QPointF origin((size - inked.width()) / 2.0 - inked.left(),
                         (size - inked.height()) / 2.0 - inked.top());
    painter.drawText(origin.toPoint(), picture.text);
    return image;
}

QImage wideText(const Picture& picture, const QImage& icon, int height)
{
    const double scale = static_cast<double>(height) / gridSize;
    const QFont font = panelFont(
        static_cast<int>(std::lround(std::clamp(picture.fontSize * panelPixelsPerPoint, 6.0, 20.0) * scale)));
    const QFontMetricsF metrics(font);
    const int margin = static_cast<int>(std::ceil(4.0 * scale));
    const int left = icon.isNull() ? margin : icon.width() + margin;
    const QString text = metrics.elidedText(picture.text, Qt::ElideRight, maximumWideWidth - left - margin);
    const int textWidth = static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));

    QImage image = ground(picture, left + textWidth + margin, height);
    QPainter painter(&image);
    // In the middle, and on an even pixel as below.
    painter.drawImage(margin / 2, 2 * static_cast<int>(std::floor((height - icon.height()) / 4.0)), icon);
    painter.setFont(font);
    painter.setPen(inkOf(picture));
    // The figures stand in the middle, not the font's line with its room for accents, and on an even pixel,
    // which stays sharp when the host halves the picture.
    const double baseline = 2 * std::round((height + metrics.capHeight()) / 4);
    painter.drawText(QPointF(left, baseline), text);
    return image;
}

/// The folder of pictures that hosts read and that are not in the bundle; empty when there is none.
QString writtenPictures()
{
    const QString runtime = runtimeFolder();
    const QString folder = runtime.isEmpty() ? cacheFolder() : runtime;
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/quindle-helper-icons");
}

/// Whether a path can be sent over the bus, which carries text only.
bool isSendable(const QString& path)
{
    return !path.isEmpty() && path.isValidUtf16();
}

bool isThere(const QString& path)
{
    std::error_code error;
    return std::filesystem::exists(pathBytes(path).toStdString(), error);
}

QByteArray contentsOf(const QString& path)
{
    constexpr qint64 mostBytes = 1024 * 1024; // a drawing has a thousandth of that
    return fileContents(path, mostBytes).bytes;
}

/// The file of that name among the written pictures, made by `make` if it is not there yet; empty if it could
/// not be written, or not be named on the bus.
QString writtenPicture(const QString& name, const std::function<QByteArray()>& make)
{
    const QString folder = writtenPictures();
    if (!isSendable(folder))
        return {};
    QString path = folder + u'/' + name;
    // Names stand for their contents, so what is there need not be written again.
    if (isThere(path))
        return path;
    const QByteArray bytes = make();
    const bool isWritten =
        !bytes.isEmpty() && makeFolder(pathBytes(folder)) == 0 && replaceFile(pathBytes(path), bytes) == 0;
    return isWritten ? path : QString();
}

QByteArray pngOf(const QImage& image)
{
    QBuffer buffer;
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

/// The glyph of a file in one colour, in its place on a square of that size.
QImage rendered(const QString& file, int size, const QColor& colour)
{
    QSvgRenderer renderer(contentsOf(file));
    if (!renderer.isValid())
        return {};
    QImage image = blankImage(size, size);
    // Sizes a little above the grid's or its double keep its pixels and get a margin instead of blurred
    // lines.
    const int grid = gridOf(size);
    const int beyond = size % grid;
    const int drawn = size > grid && beyond < 5 ? size - beyond : size;
    const int margin = (size - drawn) / 2;
    paintInStrips(
        image, [&](QPainter& painter) { renderer.render(&painter, QRectF(margin, margin, drawn, drawn)); });
    QPainter painter(&image);
    // The drawing's shape in another colour, edges included.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    return image;
}

QImage onGround(const Picture& picture, const QImage& glyph)
{
    if (glyph.isNull())
        return {};
    QImage image = ground(picture, glyph.width(), glyph.height());
    QPainter(&image).drawImage(0, 0, glyph);
    return image;
}

} // namespace

StatusPictures::StatusPictures(QString iconsDirectory)
    : m_iconsDirectory(std::move(iconsDirectory))
{
}

QImage StatusPictures::image(const Picture& picture, int size)
{
    switch (picture.kind) {
    case Picture::Kind::Icon:
        return onGround(picture, glyph(picture, size));
    case Picture::Kind::Text:
        return squareText(picture, size);
    case Picture::Kind::Wide:
        return wideText(picture, picture.imageName.isEmpty() ? QImage() : glyph(picture, onGrid(size)), size);
    case Picture::Kind::Transparent:
        break;
    }
    return {};
}

std::vector<QImage> StatusPictures::images(const Picture& picture)
{
    if (picture.kind == Picture::Kind::Transparent)
        return {};
    std::vector<QImage> made;
    for (const int size : sizesOf(picture))
        made.push_back(image(picture, size));
    std::erase_if(made, [](const QImage& one) { return one.isNull(); });
    return made;
}

QString StatusPictures::file(const Picture& picture)
{
    QString name = picture.imageName + picture.text;
    // It becomes a file name, and a title may hold anything.
    name.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    name += QString::number(picture.ink, 16) + QStringLiteral(".png");
    return writtenPicture(name, [&] { return pngOf(image(picture, squareSizes.back())); });
}

QString StatusPictures::drawing(const Picture& picture) const
{
    if (picture.kind == Picture::Kind::Text)
        return writtenPicture(QString::fromLatin1(picture.text.toUtf8().toHex()) + symbolic(),
                              [&] { return textDrawing(picture.text); });
    const int grid = picture.isSmall ? smallGridSize : gridSize;
    QString path = drawingOfImage(picture.imageName, grid);
    if (!isThere(path))
        return {};
    if (isSendable(path))
        return path;
    return writtenPicture(QString::number(grid) + u'-' + picture.imageName + symbolic(),
                          [&] { return contentsOf(path); });
}

QString StatusPictures::transparentFile() const
{
    const QString name = QStringLiteral("transparent.png");
    QString path = m_iconsDirectory + u'/' + name;
    return isSendable(path) ? path : writtenPicture(name, [&] { return contentsOf(path); });
}

QString StatusPictures::drawingOfImage(const QString& name, int grid) const
{
    const QString folder = grid == smallGridSize ? QStringLiteral("/16/") : QStringLiteral("/");
    return m_iconsDirectory + folder + name + symbolic();
}

QImage StatusPictures::glyph(const Picture& picture, int size)
{
    const QString& name = picture.imageName;
    const auto key = std::make_tuple(name, size, picture.ink);
    auto found = m_glyphs.find(key);
    if (found == m_glyphs.end()) {
        const QString path = drawingOfImage(name, gridOf(size));
        found = m_glyphs.emplace(key, rendered(path, size, inkOf(picture))).first;
        if (found->second.isNull() && m_missing.insert(name).second)
            qCWarning(logPictures) << "no usable picture in" << path;
    }
    return found->second;
}

} // namespace quindle
