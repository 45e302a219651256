#include "shell/qt/Sheet.h"

#include <QLabel>
#include <QPainter>

Sheet::Sheet(QSize design, QWidget *parent)
    : QWidget(parent), layout_(new LockLayout(this, design)) {}

void Sheet::SetFrame(Frame frame) {
    frame_ = frame;
    update();
}

void Sheet::Add(QWidget *widget, const QRect &place, Locks locks) {
    layout_->Place(widget, place, locks);
}

QLabel *Sheet::AddCaption(const QString &name, const QString &text, const QRect &place, Locks locks,
                          Qt::Alignment alignment) {
    auto *caption = new QLabel(text, this);
    caption->setObjectName(name);
    caption->setTextFormat(Qt::PlainText);
    caption->setAlignment(alignment | Qt::AlignVCenter);
    Add(caption, place, locks);
    return caption;
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
