#include "desktop/fields/Focus.h"

#include <QFocusEvent>
#include <QWidget>

namespace {

class WheelGuard : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override {
        const bool isIgnored =
            event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus();
        if (isIgnored) {
            event->ignore();
        }
        return isIgnored;
    }
};

} // namespace

bool MovesToOtherControl(const QFocusEvent &focusOut) {
    return focusOut.reason() != Qt::PopupFocusReason &&
           focusOut.reason() != Qt::MenuBarFocusReason &&
           focusOut.reason() != Qt::ActiveWindowFocusReason;
}

void IgnoreWheelWithoutFocus(QWidget &widget) {
    widget.installEventFilter(new WheelGuard(&widget));
}
