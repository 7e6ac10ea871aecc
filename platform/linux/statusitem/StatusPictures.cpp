#include "platform/linux/statusitem/StatusPictures.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logPictures, "quindle.statusitem.pictures", QtWarningMsg)

constexpr std::array squareSizes{22, 32, 44};
constexpr int wideHeight = 44;
constexpr int gridSize = 22;
constexpr int maximumWideWidth = 2 * 400;

// The menu-bar font of 12 points belongs to a bar of 22 points; panels write 13 px in one of 22 px.
constexpr double panelPixelsPerPoint = 13.0 / 12.0;

const QColor& glyphColour()
{
    static const QColor colour(255, 255, 255);
    return colour;
}

const QColor& edgeColour()
{
    static const QColor colour(24, 26, 30);
    return colour;
}

QImage blankImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage tinted(QImage image, const QColor& colour)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    return image;
}

// Eight layers of the edge overlap: the first is soft beside solid shapes, the second solid around thin text.
constexpr double iconEdgeOpacity = 0.35;
constexpr double textEdgeOpacity = 0.6;

/// The glyph on a dark edge around it; `reach` is the edge's width in pixels.
QImage withEdge(const QImage& glyph, double reach, double opacity)
{
    QImage image = blankImage(glyph.width(), glyph.height());
    const QImage edge = tinted(glyph, edgeColour());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(opacity);
    constexpr int steps = 8;
    constexpr double fullTurn = 6.283185307179586;
    for (int i = 0; i < steps; ++i) {
        const double angle = fullTurn * i / steps;
        painter.drawImage(QPointF(reach * std::cos(angle), reach * std::sin(angle)), edge);
    }
    painter.setOpacity(1.0);
    painter.drawImage(0, 0, glyph);
    return image;
}

double edgeReach(int size)
{
    return std::max(1.0, static_cast<double>(size) / gridSize);
}

QFont panelFont(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(1, pixelSize));
    font.setWeight(QFont::DemiBold);
    return font;
}

/// The font in which the text fills a square of that size, its edge included.
QFont fittingFont(const QString& text, int size)
{
    constexpr int trialSize = 100;
    const QRectF trial = QFontMetricsF(panelFont(trialSize)).tightBoundingRect(text);
    const double room = size - 2.0 * edgeReach(size);
    const double scale = std::min(room / std::max(1.0, trial.width()), room / std::max(1.0, trial.height()));
    return panelFont(static_cast<int>(std::min(trialSize * scale, static_cast<double>(size))));
}

/// A dark ground, on which thin figures read on light panels; on dark ones it is hardly seen.
QImage badge(int size)
{
    QImage image = blankImage(size, size);
    QColor ground = edgeColour();
    ground.setAlphaF(0.7F);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    const int inset = size / 11;
    painter.drawRoundedRect(image.rect().adjusted(0, inset, 0, -inset), size / 6.0, size / 6.0);
    return image;
}

QImage squareText(const QString& text, int size)
{
    QImage glyph = blankImage(size, size);
    QPainter painter(&glyph);
    painter.setFont(fittingFont(text, size));
    painter.setPen(glyphColour());
    const QRectF inked = QFontMetricsF(painter.font()).tightBoundingRect(text);
    // Whole pixels: a baseline between two of them blurs every figure's foot.
    const QPointF origin((size - inked.width()) / 2.0 - inked.left(),
                         (size - inked.height()) / 2.0 - inked.top());
    painter.drawText(origin.toPoint(), text);
    painter.end();
    QImage image = badge(size);
    QPainter(&image).drawImage(0, 0, withEdge(glyph, edgeReach(size), iconEdgeOpacity));
    return image;
}

QImage wideText(const Picture& picture, const QImage& icon, int height)
{
    const double scale = static_cast<double>(height) / gridSize;
    const QFont font = panelFont(
        static_cast<int>(std::lround(std::clamp(picture.fontSize * panelPixelsPerPoint, 6.0, 20.0) * scale)));
    const QFontMetricsF metrics(font);
    const int margin = static_cast<int>(std::ceil(2.0 * scale));
    const int left = icon.isNull() ? margin : icon.width() + margin / 2;
    const QString text = metrics.elidedText(picture.text, Qt::ElideRight, maximumWideWidth - left - margin);
    const int textWidth = static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));

    QImage glyph = blankImage(left + textWidth + margin, height);
    QPainter painter(&glyph);
    painter.setFont(font);
    painter.setPen(glyphColour());
    painter.drawText(QRect(left, 0, textWidth + margin, height),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextDontClip, text);
    painter.end();
    QImage image = withEdge(glyph, scale, textEdgeOpacity);
    QPainter(&image).drawImage(0, 0, icon);
    return image;
}

/// One element of the drawing, in its place on a square of that size.
QImage element(QSvgRenderer& renderer, const QString& id, int size)
{
    QImage image = blankImage(size, size);
    // Sizes a little above the grid's keep its pixels and get a margin instead of blurred lines.
    const int drawn = size > gridSize && size < gridSize + 4 ? gridSize : size;
    const int margin = (size - drawn) / 2;
    const double scale = static_cast<double>(drawn) / gridSize;
    const QRectF bounds = renderer.boundsOnElement(id);
    QPainter painter(&image);
    painter.translate(margin, margin);
    renderer.render(&painter, id, QRectF(bounds.topLeft() * scale, bounds.size() * scale));
    return image;
}

/// The drawing's glyph on its ground: the ground shows on light panels which part of the glyph is hollow.
QImage rendered(const QString& file, int size)
{
    QSvgRenderer renderer(file);
    if (!renderer.isValid())
        return {};
    QImage image = tinted(element(renderer, QStringLiteral("ground"), size), edgeColour());
    const QImage glyph = tinted(element(renderer, QStringLiteral("glyph"), size), glyphColour());
    QPainter(&image).drawImage(0, 0, withEdge(glyph, edgeReach(size), iconEdgeOpacity));
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
        return icon(picture.imageName, size);
    case Picture::Kind::Text:
        return squareText(picture.text, size);
    case Picture::Kind::Wide:
        return wideText(picture, picture.imageName.isEmpty() ? QImage() : icon(picture.imageName, size),
                        size);
    case Picture::Kind::Transparent:
        break;
    }
    return {};
}

std::vector<QImage> StatusPictures::images(const Picture& picture)
{
    if (picture.kind == Picture::Kind::Transparent)
        return {};
    if (picture.kind == Picture::Kind::Wide)
        return {image(picture, wideHeight)};
    std::vector<QImage> made;
    made.reserve(squareSizes.size());
    for (const int size : squareSizes)
        made.push_back(image(picture, size));
    std::erase_if(made, [](const QImage& one) { return one.isNull(); });
    return made;
}

QString StatusPictures::file(const Picture& picture)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
                           QStringLiteral("/quindle-helper-icons");
    QString name = picture.imageName + picture.text;
    name.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    QString path = folder + QLatin1Char('/') + name + QStringLiteral(".png");
    if (QFileInfo::exists(path))
        return path;
    const bool written = QDir().mkpath(folder) && image(picture, squareSizes.back()).save(path);
    return written ? path : QString();
}

QString StatusPictures::transparentFile() const
{
    return m_iconsDirectory + QStringLiteral("/transparent.png");
}

QImage StatusPictures::icon(const QString& name, int size)
{
    const auto key = std::make_pair(name, size);
    auto found = m_icons.find(key);
    if (found == m_icons.end()) {
        const QString path = m_iconsDirectory + QLatin1Char('/') + name + QStringLiteral(".svg");
        found = m_icons.emplace(key, rendered(path, size)).first;
        if (found->second.isNull() && m_missing.insert(name).second)
            qCWarning(logPictures) << "no usable picture in" << path;
    }
    return found->second;
}

} // namespace quindle
