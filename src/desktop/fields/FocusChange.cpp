#include "desktop/fields/FocusChange.h"

#include <QFocusEvent>

bool MovesToOtherControl(const QFocusEvent &focusOut) {
    return focusOut.reason() != Qt::PopupFocusReason &&
           focusOut.reason() != Qt::MenuBarFocusReason &&
           focusOut.reason() != Qt::ActiveWindowFocusReason;
}
