#include "widgets/controls/PageWheel.h"

#include <QEvent>
#include <QWidget>

namespace quindle {

namespace {

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore(); // so it goes on to the parent
        return true;
    }
};

} // namespace

void leaveWheelToPage(QWidget& control)
{
    control.installEventFilter(new WheelFilter(&control));
    control.setFocusPolicy(Qt::StrongFocus); // not by the wheel
}

} // namespace quindle
