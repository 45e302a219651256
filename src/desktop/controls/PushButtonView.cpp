#include "desktop/controls/PushButtonView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/PushButton.h"

PushButtonView::PushButtonView(PushButton &button, QWidget *parent)
    : QPushButton(button.Caption(), parent) {
    // With the focus on it, any button takes Return.
    setAutoDefault(true);
    setDefault(button.Kind() == PushButton::Role::Default);
    BindControl(button, *this);
    connect(this, &QPushButton::clicked, &button, &PushButton::Press);
}
