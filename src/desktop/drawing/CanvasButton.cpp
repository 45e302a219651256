#include "desktop/drawing/CanvasButton.h"

#include "desktop/drawing/Frame.h"
#include "platform/controls/Canvas.h"

#include <QKeyEvent>
#include <QPainter>

CanvasButton::CanvasButton(Canvas &canvas, const QString &name, const QRect &rect, QWidget *view)
    : QAbstractButton(view), canvas_(canvas), rect_(rect) {
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(this, &QAbstractButton::clicked, this, &CanvasButton::Press);
}

void CanvasButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // A key that is held down clicks only once.
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
        FillFrame(painter, rect().adjusted(1, 1, -1, -1), 2, palette().color(QPalette::Highlight));
    }
}

void CanvasButton::Press() {
    const QPoint center = rect_.center();
    Q_EMIT canvas_.MouseDown(center.x(), center.y());
    Q_EMIT canvas_.MouseUp(center.x(), center.y());
}
