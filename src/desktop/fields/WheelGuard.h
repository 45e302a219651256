#pragma once

class QWidget;

/// Makes the widget ignore the mouse wheel while it does not have the focus, so that scrolling past
/// it changes nothing.
void IgnoreWheelWithoutFocus(QWidget &widget);
