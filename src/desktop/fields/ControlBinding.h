#pragma once

class Control;
class QWidget;

/// Connects a control to the widget that shows it; the control must outlive the widget. The widget
/// gets the control's name, follows its visibility, its enabled state and its requests for the
/// focus, and shows its hint below while it has the focus. The control emits GotFocus and
/// LostFocus. Without the focus the widget ignores the mouse wheel.
void BindControl(Control &control, QWidget &widget);
