#include "desktop/drawing/Frame.h"

#include <QPainter>

void FillFrame(QPainter &painter, const QRect &outer, int width, const QColor &colour) {
    const QRect inner = outer.adjusted(width, width, -width, -width);
    painter.fillRect(QRect(outer.topLeft(), QPoint(outer.right(), inner.top() - 1)), colour);
    painter.fillRect(QRect(QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight()), colour);
    painter.fillRect(QRect(outer.topLeft(), QPoint(inner.left() - 1, outer.bottom())), colour);
    painter.fillRect(QRect(QPoint(inner.right() + 1, outer.top()), outer.bottomRight()), colour);
}
