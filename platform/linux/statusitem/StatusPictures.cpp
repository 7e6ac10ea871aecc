#include "platform/linux/statusitem/StatusPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <functional>
#include <span>

#include "common/FileContents.h"
#include "common/Paths.h"
#include "platform/linux/os/UserFolders.h"
#include "platform/linux/pictures/Eliding.h"
#include "platform/linux/pictures/GlyphBitmap.h"
#include "platform/linux/pictures/NumberPlace.h"
#include "platform/linux/pictures/Png.h"
#include "platform/linux/pictures/TextDrawing.h"
#include "platform/posix/FileReplacement.h"

namespace quindle {

namespace {

constexpr std::array squareSizes{22, 32, 44};
// An X11 tray gives the icon its room and never scales it.
constexpr std::array traySizes{16, 22, 24, 32, 44, 48};
// Panels that scale give the icon a pixel or two less than their own height.
constexpr std::array wideHeights{16, 18, 20, 22, 24, 26, 28, 30, 32, 36, 40, 44, 48};
constexpr int gridSize = 22;
constexpr int smallGridSize = 16;
// Twice the 21 pixels that the one host of wide pictures gives its icons by default, so that it halves them
// evenly.
constexpr int wideHeight = 42;
constexpr int maximumWideWidth = 2 * 400;
// Below it the lines of a drawing made on 22 pixels would be less than a pixel wide.
constexpr int smallestOnGrid = 20;
constexpr int trialSize = 100;
// The larger, the less the outline loses to rounding.
constexpr int outlineSize = 1000;

// The menu-bar font of 12 points belongs to a bar of 22 points; panels write 13 px in one of 22 px.
constexpr double panelPixelsPerPoint = 13.0 / 12.0;

constexpr Argb onPlate = 0xffffffff;
constexpr Argb plateColour = 0xbe181a1e;
constexpr Argb redOnDark = 0xffff6e61;
constexpr Argb redOnLight = 0xffc01c28;

std::span<const int> sizesOf(const Picture& picture)
{
    if (picture.kind != Picture::Kind::Wide)
        return picture.isUnscaled ? std::span<const int>(traySizes) : squareSizes;
    return picture.inAllHeights ? std::span<const int>(wideHeights) : std::span(&wideHeight, 1);
}

/// Hosts recognise drawings that they may colour by this end of the file name.
QString symbolic()
{
    return QStringLiteral("-symbolic.svg");
}

/// Whether the colour is a dark panel's text colour.
bool isLight(Argb colour)
{
    constexpr unsigned half = 3 * 128;
    return redOf(colour) + greenOf(colour) + blueOf(colour) >= half;
}

/// The colour that the picture is drawn in.
Argb inkOf(const Picture& picture)
{
    if (picture.isAlarming)
        return isKnown(picture.ink) && !isLight(picture.ink) ? redOnLight : redOnDark;
    return isKnown(picture.ink) ? picture.ink : onPlate;
}

/// What the picture is drawn on: nothing, or a dark plate where the panel's colours are unknown. White on it
/// is legible on every panel, and a full battery stays the opposite of an empty one; on dark panels the plate
/// hardly shows.
Pixels ground(const Picture& picture, int width, int height)
{
    Pixels pixels = blankPixels(width, height);
    const int inset = picture.hasBolt ? 0 : 2 * (height / gridSize);
    if (!isKnown(picture.ink))
        paintMask(pixels, 0, 0, roundedRectangle(width, height, inset, height / 5.5), plateColour);
    return pixels;
}

/// The nearest size in which the icon's lines fall on whole pixels.
int onGrid(int size)
{
    const int grid = size < smallestOnGrid ? smallGridSize : gridSize;
    return grid * std::max(1, qRound(static_cast<double>(size) / grid));
}

QRectF scaled(const QRectF& box, double scale)
{
    return {box.topLeft() * scale, box.size() * scale};
}

/// Two figures of a number; all of a shorter one.
QString pairOf(const QString& number)
{
    return number.right(2);
}

int wideFontSize(double points, double scale)
{
    return std::max(
        1, static_cast<int>(std::lround(std::clamp(points * panelPixelsPerPoint, 6.0, 20.0) * scale)));
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
    constexpr qint64 mostBytes = qint64{1024} * 1024; // a drawing is a thousandth of that
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
    // A name identifies the contents, so an existing file need not be written again.
    if (isThere(path))
        return path;
    const QByteArray bytes = make();
    const bool isWritten =
        !bytes.isEmpty() && makeFolder(pathBytes(folder)) == 0 && replaceFile(pathBytes(path), bytes) == 0;
    return isWritten ? path : QString();
}

/// What a file's name has for the bolt.
QString boltMark(const Picture& picture)
{
    return picture.hasBolt ? QStringLiteral("-bolt") : QString();
}

/// What a file name may hold; a title may hold anything.
QString plainName(QString text)
{
    return text.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
}

} // namespace

StatusPictures::StatusPictures(const QString& resourcesDirectory)
    : m_iconsDirectory(resourcesDirectory + QStringLiteral("/icons"))
    , m_masks(resourcesDirectory + QStringLiteral("/masks"))
{
}

/// Once more with the fonts there are now, where the file of one has gone: a figure must not be left out.
template <typename Draw>
auto StatusPictures::complete(const Draw& draw)
{
    auto made = draw();
    if (!m_lettering.rest()) {
        made = draw();
        m_lettering.rest();
    }
    return made;
}

Pixels StatusPictures::image(const Picture& picture, int size)
{
    return complete([&] { return drawn(picture, size); });
}

std::vector<Pixels> StatusPictures::images(const Picture& picture)
{
    if (picture.kind == Picture::Kind::Transparent)
        return {};
    std::vector<Pixels> made = complete([&] {
        std::vector<Pixels> all;
        for (const int size : sizesOf(picture))
            all.push_back(drawn(picture, size));
        return all;
    });
    std::erase_if(made, [](const Pixels& one) { return one.isEmpty(); });
    return made;
}

QString StatusPictures::file(const Picture& picture)
{
    // All that the picture depends on, so that another picture has another name.
    const QString name = plainName(picture.imageName + picture.text + picture.fontFamily) +
                         QString::number(picture.ink, 16) + boltMark(picture) +
                         (picture.isAlarming ? QStringLiteral("-alarming.png") : QStringLiteral(".png"));
    return writtenPicture(name, [&] { return pngOf(image(picture, squareSizes.back())); });
}

QString StatusPictures::drawing(const Picture& picture)
{
    if (picture.kind == Picture::Kind::Text)
        return writtenPicture(QString::fromLatin1(picture.text.toUtf8().toHex()) +
                                  plainName(picture.fontFamily) + boltMark(picture) + symbolic(),
                              [&] { return drawingOfText(picture); });
    QString path = drawingOfImage(picture.imageName, picture.isSmall);
    if (!isThere(path))
        return {};
    if (isSendable(path))
        return path;
    const int grid = picture.isSmall ? smallGridSize : gridSize;
    return writtenPicture(QString::number(grid) + u'-' + picture.imageName + symbolic(),
                          [&] { return contentsOf(path); });
}

QString StatusPictures::transparentFile() const
{
    const QString name = QStringLiteral("transparent.png");
    QString path = m_iconsDirectory + u'/' + name;
    return isSendable(path) ? path : writtenPicture(name, [&] { return contentsOf(path); });
}

QString StatusPictures::drawingOfImage(const QString& name, bool isSmall) const
{
    return m_iconsDirectory + (isSmall ? QStringLiteral("/16/") : QStringLiteral("/")) + name + symbolic();
}

QByteArray StatusPictures::drawingOfText(const Picture& picture)
{
    return complete([&] {
        std::vector<OutlineStep> outline;
        m_lettering.setFamily(picture.fontFamily);
        const QRectF box = m_lettering.addOutline(m_lettering.line(picture.text, outlineSize), outline);
        return textDrawing(outline, box, placeOf(picture, box.size(), outlineSize));
    });
}

Pixels StatusPictures::drawn(const Picture& picture, int size)
{
    m_lettering.setFamily(picture.fontFamily);
    switch (picture.kind) {
    case Picture::Kind::Icon:
        return icon(picture, size);
    case Picture::Kind::Text:
        return squareText(picture, size);
    case Picture::Kind::Wide:
        return wideText(picture, size);
    case Picture::Kind::Transparent:
        break;
    }
    return {};
}

Pixels StatusPictures::icon(const Picture& picture, int size)
{
    const Mask shape = m_masks.mask(picture.imageName, size);
    if (shape.isEmpty())
        return {};
    Pixels pixels = ground(picture, size, size);
    paintMask(pixels, 0, 0, shape, inkOf(picture));
    return pixels;
}

NumberPlace StatusPictures::placeOf(const Picture& picture, QSizeF ink, int fontSize)
{
    const double pair = m_lettering.inkOf(m_lettering.line(pairOf(picture.text), fontSize)).width();
    return numberPlace(ink, pair, picture.hasBolt);
}

Pixels StatusPictures::squareText(const Picture& picture, int size)
{
    Pixels pixels = ground(picture, size, size);
    // The size of letters is known only once they are laid out.
    const QRectF trial = m_lettering.inkOf(m_lettering.line(picture.text, trialSize));
    const NumberPlace place = placeOf(picture, trial.size(), trialSize);
    const double scale = static_cast<double>(size) / gridSize;
    paintNumber(pixels, picture, scaled(place.number, scale), trial);
    const QRect bolt = scaled(place.bolt, scale).toRect();
    paintMask(pixels, bolt.x(), bolt.y(), boltMask(bolt.width(), bolt.height()), inkOf(picture));
    return pixels;
}

/// `trial` is what the number covers in the trial's size.
void StatusPictures::paintNumber(Pixels& onto, const Picture& picture, const QRectF& place,
                                 const QRectF& trial)
{
    const double wanted = trialSize * place.height() / std::max(1.0, trial.height());
    const int fontSize = std::clamp(static_cast<int>(wanted), 1, onto.height);
    const TextLine line = m_lettering.line(picture.text, fontSize);
    const QRectF ink = m_lettering.inkOf(line);
    // Whole pixels: a baseline between two of them blurs every figure's foot.
    const QPoint origin = (place.center() - ink.center()).toPoint();
    if (ink.width() <= place.width() + 1) {
        m_lettering.paint(onto, origin.x(), origin.y(), line, inkOf(picture));
        return;
    }
    const QRect box = ink.toAlignedRect();
    Pixels whole = blankPixels(box.width(), box.height());
    m_lettering.paint(whole, -box.x(), -box.y(), line, inkOf(picture));
    const Pixels narrow = resized(whole, qRound(place.width()), box.height());
    paintPixels(onto, qRound(place.x()), origin.y() + box.y(), narrow);
}

Pixels StatusPictures::wideText(const Picture& picture, int height)
{
    const double scale = static_cast<double>(height) / gridSize;
    const int fontSize = wideFontSize(picture.fontSize, scale);
    const Mask shape = picture.imageName.isEmpty() ? Mask() : m_masks.mask(picture.imageName, onGrid(height));
    const int margin = static_cast<int>(std::ceil(4.0 * scale));
    const int left = shape.width + margin;
    const auto width = [&](const QString& text) { return m_lettering.line(text, fontSize).advance; };
    const QString text = elidedTo(picture.text, maximumWideWidth - left - margin, width);
    const TextLine line = m_lettering.line(text, fontSize);

    Pixels pixels = ground(picture, left + static_cast<int>(std::ceil(line.advance)) + margin, height);
    // In the middle, and on an even pixel as below.
    const int top = 2 * static_cast<int>(std::floor((height - shape.height) / 4.0));
    paintMask(pixels, margin / 2, top, shape, inkOf(picture));
    // The figures are centred, not the font's line with its room for accents, and on an even pixel, which
    // stays sharp when the host halves the picture.
    const int baseline = 2 * static_cast<int>(std::lround((height + m_lettering.capHeight(fontSize)) / 4));
    m_lettering.paint(pixels, left, baseline, line, inkOf(picture));
    return pixels;
}

} // namespace quindle
