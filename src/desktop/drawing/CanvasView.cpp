#include "desktop/drawing/CanvasView.h"

#include "desktop/drawing/CanvasButton.h"
#include "desktop/drawing/PainterGraphics.h"
#include "desktop/fields/ControlBinding.h"
#include "desktop/look/FontScaling.h"
#include "platform/controls/Canvas.h"

#include <QMouseEvent>
#include <QPainter>

CanvasView::CanvasView(Canvas &canvas, QWidget *parent) : QWidget(parent), canvas_(canvas) {
    BindControl(canvas, *this);
    connect(&canvas, &Canvas::Updated, this, qOverload<>(&QWidget::update));
}

CanvasButton *CanvasView::AddButton(const QString &name, const QRect &rect) {
    return new CanvasButton(canvas_, name, rect, this);
}

void CanvasView::showEvent(QShowEvent * /*event*/) {
    if (!isOpen_) {
        isOpen_ = true;
        Q_EMIT canvas_.Open();
    }
}

void CanvasView::resizeEvent(QResizeEvent * /*event*/) {
    const double factor = ScaleFactor(*this);
    canvas_.SetSize(qRound(width() / factor), qRound(height() / factor));
    for (CanvasButton *button : findChildren<CanvasButton *>()) {
        button->setGeometry(Scaled(button->Rect(), factor));
    }
}

void CanvasView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    const double factor = ScaleFactor(*this);
    painter.scale(factor, factor);
    PainterGraphics graphics(painter, QRectF(0, 0, width() / factor, height() / factor));
    if (const Picture *backdrop = canvas_.Backdrop()) {
        backdrop->DrawOn(graphics);
    }
    Q_EMIT canvas_.Paint(graphics);
}

void CanvasView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        const QPoint position = ToCanvas(*event);
        Q_EMIT canvas_.MouseDown(position.x(), position.y());
    }
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (canvas_.EmitsMouseDownOnDoubleClick()) {
        mousePressEvent(event);
    }
}

void CanvasView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        const QPoint position = ToCanvas(*event);
        Q_EMIT canvas_.MouseUp(position.x(), position.y());
    }
}

QPoint CanvasView::ToCanvas(const QMouseEvent &event) const {
    return (event.position() / ScaleFactor(*this)).toPoint();
}

void CanvasView::enterEvent(QEnterEvent * /*event*/) {
    Q_EMIT canvas_.MouseEnter();
}

void CanvasView::leaveEvent(QEvent * /*event*/) {
    Q_EMIT canvas_.MouseExit();
}
