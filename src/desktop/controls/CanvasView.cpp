#include "desktop/controls/CanvasView.h"

#include "desktop/controls/CanvasButton.h"
#include "desktop/controls/ControlBinding.h"
#include "desktop/controls/PainterGraphics.h"
#include "platform/controls/Canvas.h"

#include <QMouseEvent>
#include <QPainter>

CanvasView::CanvasView(Canvas &canvas, QWidget *parent) : QWidget(parent), canvas_(canvas) {
    BindControl(canvas, *this);
    connect(&canvas, &Canvas::Updated, this, qOverload<>(&QWidget::update));
}

CanvasButton *CanvasView::AddButton(const QString &name, const QRect &place) {
    return new CanvasButton(canvas_, name, place, this);
}

void CanvasView::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (!opened_) {
        opened_ = true;
        Q_EMIT canvas_.Open();
    }
}

void CanvasView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    canvas_.SetSize(width(), height());
}

void CanvasView::paintEvent(QPaintEvent *event) {
    QWidget::paintEvent(event);
    QPainter painter(this);
    PainterGraphics graphics(painter, rect());
    if (const Picture *backdrop = canvas_.Backdrop()) {
        backdrop->DrawOn(graphics);
    }
    Q_EMIT canvas_.Paint(graphics);
}

void CanvasView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        const QPoint place = event->position().toPoint();
        Q_EMIT canvas_.MouseDown(place.x(), place.y());
    }
}

void CanvasView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        const QPoint place = event->position().toPoint();
        Q_EMIT canvas_.MouseUp(place.x(), place.y());
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
