#include "platform/linux/statusitem/Presentation.h"

#include "common/SingleLine.h"
#include "platform/linux/statusitem/StatusTexts.h"

namespace quindle {

namespace {

constexpr int labelLength = 60;
constexpr int drawnLength = 40;
constexpr int squareTextLength = 3;
constexpr int toolTipLength = 1000;

QString lastResortImage()
{
    return QStringLiteral("AppIconBW");
}

Picture iconPicture(const QString& imageName)
{
    return {Picture::Kind::Icon, imageName, {}, 0.0, 0};
}

Picture squarePicture(const ItemContents& contents)
{
    if (!contents.imageName.isEmpty())
        return iconPicture(contents.imageName);
    const QString text = contents.fallbackText.trimmed();
    if (text.isEmpty() || text.size() > squareTextLength)
        return iconPicture(lastResortImage());
    return {Picture::Kind::Text, {}, text, 0.0, 0};
}

Picture pictureFor(const ItemContents& contents, HostShape shape)
{
    const QString line = elided(singleLine(contents.title).trimmed(), drawnLength);
    if (line.isEmpty() || shape == HostShape::Square)
        return squarePicture(contents);
    if (shape == HostShape::Wide)
        return {Picture::Kind::Wide, contents.imageName, line, contents.fontSize, 0};
    if (contents.imageName.isEmpty())
        return {Picture::Kind::Transparent, {}, {}, 0.0, 0};
    return iconPicture(contents.imageName);
}

Carrier carrierOf(const Picture& picture, const HostTraits& host)
{
    // Drawings are shown as squares.
    const bool square = picture.kind == Picture::Kind::Icon || picture.kind == Picture::Kind::Text;
    if (host.coloursDrawings && square)
        return Carrier::Drawing;
    return host.needsIconFile ? Carrier::File : Carrier::Pixels;
}

QString toolTipCut(const QString& text)
{
    return elided(busText(text), toolTipLength);
}

QString toolTipTitle(const Presentation& told, const ItemContents& contents, const HostTraits& host)
{
    if (host.showsToolTipTitleOnly)
        return literalPanelToolTip(told.plainToolTip);
    const QString cut = toolTipCut(contents.title);
    return host.escapesToolTipTitle ? cut : escapedMarkup(cut);
}

} // namespace

Presentation present(const ItemContents& contents, const HostTraits& host)
{
    Presentation told;
    told.title = busText(contents.title);
    told.plainToolTip =
        (toolTipCut(contents.title) + QLatin1Char('\n') + toolTipCut(contents.toolTipText)).trimmed();
    told.toolTipTitle = toolTipTitle(told, contents, host);
    told.toolTipBody = escapedMarkup(toolTipCut(contents.toolTipText));
    if (host.takesLabel)
        told.label = elided(singleLine(contents.title), labelLength);
    if (!told.label.isEmpty())
        told.labelGuide = QStringLiteral("100.0%");
    told.picture = pictureFor(contents, host.shape);
    told.picture.ink = host.textColour;
    told.picture.inAllHeights = host.labelHidesIcon;
    told.picture.isSmall = host.drawsSmall;
    told.carrier = carrierOf(told.picture, host);
    return told;
}

} // namespace quindle
