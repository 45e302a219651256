#include "desktop/windows/Sheet.h"

#include "desktop/controls/PushButtonView.h"
#include "platform/controls/PushButton.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <utility>

Sheet::Sheet(QSize design, QWidget *parent)
    : QWidget(parent), layout_(new LockLayout(this, design)) {}

void Sheet::SetFrame(Frame frame) {
    frame_ = frame;
    update();
}

void Sheet::Add(QWidget *widget, const QRect &place, Locks locks) {
    layout_->Place(widget, place, locks);
    if (QLabel *caption = std::exchange(caption_, nullptr)) {
        caption->setBuddy(widget);
    }
}

void Sheet::AddNamed(const QString &name, QWidget *widget, const QRect &place, Locks locks) {
    widget->setAccessibleName(name);
    // On some desktops a combo box tells its row for a name, and what it is only by a caption.
    if (qobject_cast<QComboBox *>(widget) != nullptr) {
        auto *caption = new QLabel(name, this);
        caption->hide();
        caption->setBuddy(widget);
    }
    Add(widget, place, locks);
}

void Sheet::AddButton(PushButton &button, const QRect &place, Locks locks) {
    Add(new PushButtonView(button, this), place, locks);
    buttons_.push_back(&button);
}

QLabel *Sheet::AddText(const QString &name, const QString &text, const QRect &place, Locks locks,
                       Qt::Alignment alignment) {
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const bool hasHeight = alignment & Qt::AlignVertical_Mask;
    label->setAlignment(hasHeight ? alignment : alignment | Qt::AlignVCenter);
    Add(label, place, locks);
    return label;
}

QLabel *Sheet::AddCaption(const QString &name, const QString &text, const QRect &place, Locks locks,
                          Qt::Alignment alignment) {
    caption_ = AddText(name, text, place, locks, alignment);
    return caption_;
}

void Sheet::paintEvent(QPaintEvent *event) {
    QWidget::paintEvent(event);
    if (!frame_) {
        return;
    }
    QPainter painter(this);
    painter.setPen(QColor(frame_->border));
    painter.setBrush(QColor(frame_->fill));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
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
