#include "menubar/ObjectController.h"

#include <QObject>

namespace quindle {

void ObjectController::addObject(QObject* object)
{
    m_content = object;
    if (m_changed)
        m_changed();
}

} // namespace quindle
