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

Picture squarePicture(const ItemContents& contents, bool showsNumber)
{
    const QString text = contents.fallbackText.trimmed();
    // A square has room for "100".
    const bool hasNumber = !text.isEmpty() && text.size() <= squareTextLength;
    if (!contents.imageName.isEmpty() && !(showsNumber && hasNumber))
        return iconPicture(contents.imageName);
    if (!hasNumber)
        return iconPicture(lastResortImage());
    Picture number{Picture::Kind::Text, {}, text, 0.0, 0};
    // The charging icons, which the number replaces, show it too.
    number.hasBolt = contents.hasPower;
    return number;
}

Picture pictureFor(const ItemContents& contents, const HostTraits& host)
{
    const QString line = elided(singleLine(contents.title).trimmed(), drawnLength);
    if (line.isEmpty() || host.shape == HostShape::Square)
        return squarePicture(contents, host.showsNumber);
    if (host.shape == HostShape::Wide)
        return {Picture::Kind::Wide, contents.imageName, line, contents.fontSize, 0};
    // The host writes the title beside it, and without a picture would show its own for missing ones.
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

QString toolTipTitle(const Presentation& presented, const ItemContents& contents, const HostTraits& host)
{
    if (host.showsToolTipTitleOnly)
        return literalPanelToolTip(presented.plainToolTip);
    const QString cut = toolTipCut(contents.title);
    // Escaped twice, the escapes themselves would show.
    return host.escapesToolTipTitle ? cut : escapedMarkup(cut);
}

} // namespace

Presentation present(const ItemContents& contents, const HostTraits& host, const QString& fontFamily)
{
    Presentation presented;
    presented.title = busText(contents.title);
    presented.plainToolTip =
        (toolTipCut(contents.title) + QLatin1Char('\n') + toolTipCut(contents.toolTipText)).trimmed();
    presented.toolTipTitle = toolTipTitle(presented, contents, host);
    presented.toolTipBody = escapedMarkup(toolTipCut(contents.toolTipText));
    if (host.takesLabel)
        presented.label = elided(singleLine(contents.title), labelLength);
    if (!presented.label.isEmpty())
        presented.labelGuide = QStringLiteral("100.0%");
    presented.picture = pictureFor(contents, host);
    presented.picture.ink = host.textColour;
    presented.picture.inAllHeights = host.labelHidesIcon;
    presented.picture.isSmall = host.drawsSmall;
    if (!presented.picture.text.isEmpty())
        presented.picture.fontFamily = fontFamily;
    presented.picture.isUnscaled = host.neverScales;
    presented.carrier = carrierOf(presented.picture, host);
    presented.needsAttention = contents.needsAttention;
    return presented;
}

ShownItem shownItem(const Presentation& presentation, HostShape shape)
{
    const Picture& picture = presentation.picture;
    if (picture.kind == Picture::Kind::Text)
        return {.form = ShownItem::Form::Number, .text = picture.text};
    if (picture.kind == Picture::Kind::Wide)
        return {.form = ShownItem::Form::Text, .text = picture.text};
    // Other hosts get the label, too, and show none.
    if (shape == HostShape::Label && !presentation.label.trimmed().isEmpty())
        return {.form = ShownItem::Form::Text, .text = presentation.label.trimmed()};
    return {.form = ShownItem::Form::Icon};
}

std::optional<Picture> shownSquare(const Presentation& presentation)
{
    Picture picture = presentation.picture;
    if (picture.kind == Picture::Kind::Wide) {
        picture = iconPicture(picture.imageName);
        if (picture.imageName.isEmpty())
            return std::nullopt;
    }
    if (picture.kind == Picture::Kind::Transparent)
        return std::nullopt;
    picture.ink = opaqueColour(0, 0, 0);
    return picture;
}

Picture attentionPicture(const Presentation& presentation)
{
    Picture picture = presentation.picture;
    picture.isAlarming = true;
    return picture;
}

} // namespace quindle
