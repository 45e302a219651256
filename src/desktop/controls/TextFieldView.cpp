#include "desktop/controls/TextFieldView.h"

#include "desktop/controls/ControlBinding.h"
#include "desktop/controls/OneLinePaste.h"
#include "platform/controls/TextField.h"

#include <QSignalBlocker>

TextFieldView::TextFieldView(TextField &field, QWidget *parent) : QLineEdit(parent) {
    setText(field.Text());
    ShowBeginning(*this);
    TakeAsOneLine(*this);
    BindControl(field, *this);
    connect(&field, &TextField::Updated, this, [this, &field] {
        if (text() != field.Text()) {
            // Unheard, for the line edit may hold less than the field: it cuts a very long text.
            const QSignalBlocker unheard(this);
            setText(field.Text());
            ShowBeginning(*this);
        }
    });
    connect(this, &QLineEdit::textChanged, &field, &TextField::SetText);
}
