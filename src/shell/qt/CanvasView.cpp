#include "shell/qt/CanvasView.h"

#include "platform/Canvas.h"
#include "shell/qt/ControlBinding.h"
#include "shell/qt/PainterGraphics.h"

#include <QMouseEvent>
#include <QPainter>

CanvasView::CanvasView(Canvas &canvas, QWidget *parent) : QWidget(parent), canvas_(canvas) {
    BindControl(canvas, *this);
    connect(&canvas, &Canvas::Updated, this, qOverload<>(&QWidget::update));
}

void CanvasView::paintEvent(QPaintEvent *event) {
    QWidget::paintEvent(event);
    QPainter painter(this);
    PainterGraphics graphics(painter, rect());
    Q_EMIT canvas_.Paint(graphics);
}

void CanvasView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT canvas_.MouseDown(event->position().toPoint().x(), event->position().toPoint().y());
    }
}

void CanvasView::enterEvent(QEnterEvent *event) {
    QWidget::enterEvent(event);
    Q_EMIT canvas_.MouseEnter();
}

void CanvasView::leaveEvent(QEvent *event) {
    QWidget::leaveEvent(event);
    Q_EMIT canvas_.MouseExit();
}
