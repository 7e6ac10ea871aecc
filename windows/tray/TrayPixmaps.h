#pragma once

#include <QIcon>
#include <QList>

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

/// The icon of these sizes; what is no picture, or larger than any icon, is left out.
QIcon iconOf(const QList<NotifierPixmap>& pixmaps);

} // namespace quindle
