#include "desktop/fields/ControlBinding.h"

#include "desktop/fields/Announcement.h"
#include "desktop/fields/Focus.h"
#include "desktop/fields/HintView.h"
#include "platform/controls/Control.h"

#include <QFocusEvent>
#include <QWidget>

namespace {

/// Passes the focus events of a widget to its control, and shows the control's hint.
class FocusWatcher : public QObject {
public:
    FocusWatcher(Control &control, QWidget &widget)
        : QObject(&widget), control_(control), widget_(widget) {
        widget.installEventFilter(this);
        connect(&control, &Control::HintChanged, this, [this] {
            ShowHint();
            widget_.setAccessibleDescription(control_.Hint());
            if (hasFocus_ && !control_.Hint().isEmpty()) {
                Announce(*widget_.window(), control_.Hint());
            }
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::FocusIn && !hasFocus_) {
            hasFocus_ = true;
            Q_EMIT control_.GotFocus();
            ShowHint();
        } else if (event->type() == QEvent::FocusOut &&
                   MovesToOtherControl(*static_cast<QFocusEvent *>(event))) {
            hasFocus_ = false;
            Q_EMIT control_.LostFocus();
            ShowHint();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void ShowHint() {
        const QString hint = hasFocus_ ? control_.Hint() : QString();
        if (hint_ == nullptr && !hint.isEmpty()) {
            hint_ = new HintView(widget_);
        }
        if (hint_ != nullptr) {
            hint_->SetText(hint);
        }
    }

    Control &control_;
    QWidget &widget_;
    /// Created when first needed; owned by the window, deleted with the widget.
    HintView *hint_ = nullptr;
    bool hasFocus_ = false;
};

} // namespace

void BindControl(Control &control, QWidget &widget) {
    widget.setObjectName(control.objectName());
    // Only hidden here: an explicit show would open a widget before its window.
    if (!control.Visible()) {
        widget.hide();
    }
    widget.setEnabled(control.Enabled());
    QObject::connect(&control, &Control::Updated, &widget, [&control, &widget] {
        widget.setVisible(control.Visible());
        widget.setEnabled(control.Enabled());
    });
    QObject::connect(&control, &Control::FocusRequested, &widget, [&widget] {
        // Not on a hidden page; the window itself may not be shown yet.
        if (widget.isVisibleTo(widget.window())) {
            widget.setFocus(Qt::OtherFocusReason);
        }
    });
    IgnoreWheelWithoutFocus(widget);
    new FocusWatcher(control, widget);
}
