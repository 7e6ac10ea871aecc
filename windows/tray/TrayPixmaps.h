#pragma once

#include <QIcon>
#include <QList>

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

/// The icon in these sizes; invalid pictures and ones larger than any icon are left out.
QIcon iconOf(const QList<NotifierPixmap>& pixmaps);

} // namespace quindle
