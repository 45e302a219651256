#pragma once

#include "platform/Graphics.h"

#include <QColor>
#include <QRectF>

class QPainter;

/// Draws with a painter, on an area of its device.
class PainterGraphics : public Graphics {
public:
    PainterGraphics(QPainter &painter, const QRectF &area);
    ~PainterGraphics() override;

    double Width() const override { return area_.width(); }
    double Height() const override { return area_.height(); }
    void SetForeColor(Color color) override { color_ = QColor(QRgb(color.rgb)); }
    void FillRect(double left, double top, double width, double height) override;

private:
    QPainter &painter_;
    QRectF area_;
    QColor color_;
};
