#pragma once

#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/linux/pictures/Pixels.h"

namespace quindle {

/// The shapes in a file of grey pictures, one after the other (binary PGM, 255 for covered): an icon in the
/// sizes that it was drawn in. Empty for anything else; squares of 1 to 256 pixels only.
std::vector<Mask> masksOf(const QByteArray& file);

/// The largest of the shapes that is at most as wide as that; else the smallest. Null where there is none.
/// Sizes a little above a drawing's keep its sharp lines and get a margin.
const Mask* fittingMask(const std::vector<Mask>& masks, int size);

/// The icons' shapes as they were drawn when the program was built.
class IconMasks
{
public:
    /// The folder has a file NAME.pgm for each icon.
    explicit IconMasks(QString folder);

    /// The icon in the middle of a square of that size. Empty, and logged once for each name, where there is
    /// no usable file.
    Mask mask(const QString& name, int size);

private:
    const std::vector<Mask>& masks(const QString& name);

    QString m_folder;
    QString m_name; ///< of the icon that was asked for last: its shapes are kept
    std::vector<Mask> m_masks;
    QStringList m_missing; ///< already logged
};

} // namespace quindle
