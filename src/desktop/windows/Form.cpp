#include "desktop/windows/Form.h"

#include "desktop/drawing/Frame.h"
#include "desktop/fields/Fields.h"
#include "platform/controls/PushButton.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

Form::Form(QSize design, QWidget *parent)
    : QWidget(parent), layout_(new LockLayout(this, design)) {}

void Form::SetFrame(Frame frame) {
    frame_ = frame;
    update();
}

QWidget *Form::Add(QWidget *widget, const QRect &rect, Qt::Edges locks) {
    layout_->AddAt(widget, rect, locks);
    return widget;
}

QWidget *Form::AddNamed(const QString &name, QWidget *widget, const QRect &rect, Qt::Edges locks) {
    widget->setAccessibleName(name);
    // Some platforms read the current row of a combo box as its name; they do read a buddy.
    if (qobject_cast<QComboBox *>(widget) != nullptr) {
        auto *caption = new QLabel(name, this);
        caption->hide();
        caption->setBuddy(widget);
    }
    return Add(widget, rect, locks);
}

void Form::AddButton(PushButton &button, const QRect &rect, Qt::Edges locks) {
    Add(CreatePushButton(button, this), rect, locks);
    buttons_.push_back(&button);
}

QLabel *Form::AddText(const QString &name, const QString &text, const QRect &rect,
                      Qt::Alignment alignment) {
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const bool hasHeight = alignment & Qt::AlignVertical_Mask;
    label->setAlignment(hasHeight ? alignment : alignment | Qt::AlignVCenter);
    Add(label, rect);
    return label;
}

QLabel *Form::SetTextFont(QLabel *text, int size, bool bold) {
    QFont font;
    font.setBold(bold);
    layout_->SetFont(*text, font, size);
    return text;
}

void Form::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        layout_->invalidate();
        layout_->activate();
    }
}

void Form::paintEvent(QPaintEvent * /*event*/) {
    if (!frame_) {
        return;
    }
    QPainter painter(this);
    painter.fillRect(rect(), QColor(frame_->fill));
    FillFrame(painter, rect(), 1, QColor(frame_->border));
}

void Form::keyPressEvent(QKeyEvent *event) {
    const bool accepts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool rejects = event->key() == Qt::Key_Escape;
    for (PushButton *button : buttons_) {
        const bool matches = (accepts && button->Kind() == PushButton::Role::Default) ||
                             (rejects && button->Kind() == PushButton::Role::Cancel);
        if (matches && button->Visible()) {
            button->Press();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}
