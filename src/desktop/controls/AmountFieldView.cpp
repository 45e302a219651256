#include "desktop/controls/AmountFieldView.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

void AmountFieldView::keyPressEvent(QKeyEvent *event) {
    const bool decimal = event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma;
    if (decimal && event->modifiers() == Qt::KeypadModifier) {
        insert(u","_s);
    } else {
        TextFieldView::keyPressEvent(event);
    }
}
