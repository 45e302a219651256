#include "shell/qt/AmountFieldView.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

AmountFieldView::AmountFieldView(TextField &field, QWidget *parent) : TextFieldView(field, parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setPlaceholderText(u"in €"_s);
}

void AmountFieldView::keyPressEvent(QKeyEvent *event) {
    const bool decimal = event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma;
    if (decimal && event->modifiers() == Qt::KeypadModifier) {
        insert(u","_s);
    } else {
        TextFieldView::keyPressEvent(event);
    }
}
