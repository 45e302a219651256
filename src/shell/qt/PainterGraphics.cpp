#include "shell/qt/PainterGraphics.h"

#include <QPainter>

PainterGraphics::PainterGraphics(QPainter &painter, const QRectF &area)
    : painter_(painter), area_(area) {
    painter_.save();
    painter_.translate(area_.topLeft());
}

PainterGraphics::~PainterGraphics() {
    painter_.restore();
}

void PainterGraphics::FillRect(double left, double top, double width, double height) {
    painter_.fillRect(QRectF(left, top, width, height), color_);
}
