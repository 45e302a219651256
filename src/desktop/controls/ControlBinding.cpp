#include "desktop/controls/ControlBinding.h"

#include "platform/controls/Control.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QWidget>

namespace {

/// Hands the focus events of a widget to its control, and keeps the wheel away without the focus:
/// who scrolls past changes nothing.
class FocusWatcher : public QObject {
public:
    FocusWatcher(Control &control, QWidget &widget)
        : QObject(&widget), control_(control), widget_(widget) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::FocusIn && !focused_) {
            focused_ = true;
            Q_EMIT control_.GotFocus();
        } else if (event->type() == QEvent::FocusOut &&
                   LeavesForGood(*static_cast<QFocusEvent *>(event))) {
            focused_ = false;
            Q_EMIT control_.LostFocus();
        } else if (event->type() == QEvent::Wheel && !widget_.hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Control &control_;
    QWidget &widget_;
    bool focused_ = false;
};

} // namespace

void BindControl(Control &control, QWidget &widget) {
    widget.setObjectName(control.objectName());
    const auto show = [&control, &widget] {
        widget.setVisible(control.Visible());
        widget.setEnabled(control.Enabled());
    };
    // A widget that was never told to show comes up with its window.
    if (!control.Visible()) {
        widget.hide();
    }
    widget.setEnabled(control.Enabled());
    QObject::connect(&control, &Control::Updated, &widget, show);
    QObject::connect(&control, &Control::FocusRequested, &widget, [&widget] {
        // What stands on a page that does not show takes no keys. A window may still come up.
        if (widget.isVisibleTo(widget.window())) {
            widget.setFocus(Qt::OtherFocusReason);
        }
    });
    // Owned by the widget.
    new FocusWatcher(control, widget);
}

bool LeavesForGood(const QFocusEvent &event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

void ShowBeginning(QLineEdit &edit) {
    if (!edit.hasFocus()) {
        edit.setCursorPosition(0);
    }
}
