#include "desktop/controls/LabelView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/Label.h"

LabelView::LabelView(Label &label, QWidget *parent, Qt::Alignment alignment)
    : QLabel(parent), label_(label) {
    setTextFormat(Qt::PlainText);
    setAlignment(alignment | Qt::AlignVCenter);
    BindControl(label, *this);
    ShowText();
    connect(&label, &Label::Updated, this, &LabelView::ShowText);
}

void LabelView::ShowText() {
    setText(label_.Text());
    setAccessibleName(label_.SpokenText());
}
