#pragma once

#include "platform/drawing/Graphics.h"

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
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double left, double top, double width, double height) override;
    void FillRect(double left, double top, double width, double height) override;
    /// Takes the file's twin for fine screens, name@2x, where the device is one.
    void DrawPicture(const FolderItem &file, double x, double y) override;

private:
    QPainter &painter_;
    QRectF area_;
    QColor color_;
};
