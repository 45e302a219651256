#pragma once

class QFocusEvent;
class QWidget;

/// Returns whether the focus goes to another control. A menu, a pop-up list or another window
/// receives the keys only for a while, and the focus returns from there.
bool MovesToOtherControl(const QFocusEvent &focusOut);

/// Makes the widget ignore the mouse wheel while it does not have the focus, so that scrolling past
/// it changes nothing.
void IgnoreWheelWithoutFocus(QWidget &widget);
