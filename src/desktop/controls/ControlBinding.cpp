#include "desktop/controls/ControlBinding.h"

#include "desktop/controls/HintView.h"
#include "platform/controls/Control.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLineEdit>
#include <QWidget>

namespace {

/// Hands the focus events of a widget to its control, tells the control's hint, and keeps the wheel
/// away without the focus: who scrolls past changes nothing.
class FocusWatcher : public QObject {
public:
    FocusWatcher(Control &control, QWidget &widget)
        : QObject(&widget), control_(control), widget_(widget) {
        widget.installEventFilter(this);
        connect(&control, &Control::HintChanged, this, [this] {
            ShowHint();
            widget_.setAccessibleDescription(control_.Hint());
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::FocusIn && !focused_) {
            focused_ = true;
            Q_EMIT control_.GotFocus();
            ShowHint();
        } else if (event->type() == QEvent::FocusOut &&
                   LeavesForGood(*static_cast<QFocusEvent *>(event))) {
            focused_ = false;
            Q_EMIT control_.LostFocus();
            ShowHint();
        } else if (event->type() == QEvent::Wheel && !widget_.hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void ShowHint() {
        const QString hint = focused_ ? control_.Hint() : QString();
        if (hint_ == nullptr && !hint.isEmpty()) {
            hint_ = new HintView(widget_);
        }
        if (hint_ != nullptr) {
            hint_->Tell(hint);
        }
    }

    Control &control_;
    QWidget &widget_;
    /// Made when it is needed; goes with the widget.
    HintView *hint_ = nullptr;
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

void ShowWholeRows(QAbstractItemView &list) {
    const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    list.setMinimumWidth(list.sizeHintForColumn(0) + bar + 2 * list.frameWidth());
}

void ShowBeginning(QLineEdit &edit) {
    if (!edit.hasFocus()) {
        edit.setCursorPosition(0);
    }
}
