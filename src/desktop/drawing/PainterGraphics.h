#pragma once

#include "platform/drawing/Graphics.h"

#include <QColor>
#include <QRectF>

class QPainter;

/// Draws with a QPainter on an area of its device.
class PainterGraphics : public Graphics {
public:
    PainterGraphics(QPainter &painter, const QRectF &area);
    ~PainterGraphics() override;

    double Width() const override { return area_.width(); }
    double Height() const override { return area_.height(); }
    void SetForeColor(Color color) override { color_ = QColor(QRgb(color.rgb)); }
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double left, double top, double width, double height) override;
    void FillRect(double left, double top, double width, double height) override;
    /// Uses the file name@2x.png on a screen of high resolution.
    void DrawPicture(const FolderItem &file, double x, double y) override;

private:
    QPainter &painter_;
    QRectF area_;
    QColor color_;
};
