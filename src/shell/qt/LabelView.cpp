#include "shell/qt/LabelView.h"

#include "platform/Label.h"
#include "shell/qt/ControlBinding.h"

LabelView::LabelView(Label &label, QWidget *parent, Qt::Alignment alignment) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(alignment | Qt::AlignVCenter);
    setText(label.Text());
    BindControl(label, *this);
    connect(&label, &Label::Updated, this, [this, &label] { setText(label.Text()); });
}
