#include "desktop/controls/CanvasButton.h"

#include "platform/controls/Canvas.h"

#include <QKeyEvent>
#include <QPainter>

CanvasButton::CanvasButton(Canvas &canvas, const QString &name, const QRect &place, QWidget *view)
    : QAbstractButton(view), canvas_(canvas) {
    setAccessibleName(name);
    setGeometry(place);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(this, &QAbstractButton::clicked, this, &CanvasButton::Press);
}

void CanvasButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // One press, one click: a key that is held down does no more.
        if (!event->isAutoRepeat()) {
            click();
        }
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void CanvasButton::paintEvent(QPaintEvent * /*event*/) {
    if (hasFocus()) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(2, 2, -2, -2));
    }
}

void CanvasButton::Press() {
    const QPoint middle = geometry().center();
    Q_EMIT canvas_.MouseDown(middle.x(), middle.y());
    Q_EMIT canvas_.MouseUp(middle.x(), middle.y());
}
