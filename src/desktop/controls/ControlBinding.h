#pragma once

class Control;
class QAbstractItemView;
class QFocusEvent;
class QLineEdit;
class QWidget;

/// Names the widget after its control, keeps it shown, usable and focused as the control says, and
/// tells the control when the focus comes and goes. Without the focus the wheel passes the widget
/// by.
void BindControl(Control &control, QWidget &widget);

/// Whether the focus went to another control. A menu, a pop-up list or another window takes the
/// keys for a while only, and the focus comes back from there.
bool LeavesForGood(const QFocusEvent &event);

/// Has the list of a combo box be as wide as its longest row, at least.
void ShowWholeRows(QAbstractItemView &list);

/// Shows a long text that the program has written from its beginning, unless the user is in it.
void ShowBeginning(QLineEdit &edit);
