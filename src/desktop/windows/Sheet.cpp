#include "desktop/windows/Sheet.h"

#include "desktop/controls/Frame.h"
#include "desktop/controls/PushButtonView.h"
#include "platform/controls/PushButton.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

Sheet::Sheet(QSize design, QWidget *parent)
    : QWidget(parent), layout_(new LockLayout(this, design)) {}

void Sheet::SetFrame(Frame frame) {
    frame_ = frame;
    update();
}

QWidget *Sheet::Add(QWidget *widget, const QRect &place, Qt::Edges locks) {
    layout_->Place(widget, place, locks);
    return widget;
}

QWidget *Sheet::AddNamed(const QString &name, QWidget *widget, const QRect &place,
                         Qt::Edges locks) {
    widget->setAccessibleName(name);
    // On some desktops a combo box tells its row for a name, and what it is only by a caption.
    if (qobject_cast<QComboBox *>(widget) != nullptr) {
        auto *caption = new QLabel(name, this);
        caption->hide();
        caption->setBuddy(widget);
    }
    return Add(widget, place, locks);
}

void Sheet::AddButton(PushButton &button, const QRect &place, Qt::Edges locks) {
    Add(new PushButtonView(button, this), place, locks);
    buttons_.push_back(&button);
}

QLabel *Sheet::AddText(const QString &name, const QString &text, const QRect &place,
                       Qt::Alignment alignment) {
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const bool hasHeight = alignment & Qt::AlignVertical_Mask;
    label->setAlignment(hasHeight ? alignment : alignment | Qt::AlignVCenter);
    Add(label, place);
    return label;
}

QLabel *Sheet::SetLetters(QLabel *text, int size, bool bold) {
    QFont font;
    font.setBold(bold);
    layout_->SetFont(*text, font, size);
    return text;
}

void Sheet::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        layout_->invalidate();
        layout_->activate();
    }
}

void Sheet::paintEvent(QPaintEvent * /*event*/) {
    if (!frame_) {
        return;
    }
    QPainter painter(this);
    painter.fillRect(rect(), QColor(frame_->fill));
    FillFrame(painter, rect(), 1, QColor(frame_->border));
}

void Sheet::keyPressEvent(QKeyEvent *event) {
    const bool accepts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool rejects = event->key() == Qt::Key_Escape;
    for (PushButton *button : buttons_) {
        const bool wanted = (accepts && button->Kind() == PushButton::Role::Default) ||
                            (rejects && button->Kind() == PushButton::Role::Cancel);
        if (wanted && button->Visible()) {
            button->Press();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}
