#pragma once

class QFocusEvent;

/// Returns whether the focus goes to another control. A menu, a pop-up list or another window
/// receives the keys only for a while, and the focus returns from there.
bool MovesToOtherControl(const QFocusEvent &focusOut);
