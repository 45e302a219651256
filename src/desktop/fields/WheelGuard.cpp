#include "desktop/fields/WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace {

class WheelGuard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus()) {
            event->ignore();
            return true;
        }
        return false;
    }
};

} // namespace

void IgnoreWheelWithoutFocus(QWidget &widget) {
    widget.installEventFilter(new WheelGuard(&widget));
}
