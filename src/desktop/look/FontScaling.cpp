#include "desktop/look/FontScaling.h"

#include <QWidget>

#include <algorithm>

namespace {

/// 11 points at 96 dpi.
constexpr double largestDesignFontPx = 11 * 96 / 72.0;

} // namespace

double FontSizePx(const QWidget &widget) {
    constexpr double pointsPerInch = 72;
    const QFont &font = widget.font();
    // The requested size: QFontInfo rounds it to what the screen shows.
    return font.pixelSize() > 0 ? font.pixelSize()
                                : font.pointSizeF() * widget.logicalDpiY() / pointsPerInch;
}

double ScaleFactor(const QWidget &widget) {
    return std::max(1.0, FontSizePx(widget) / largestDesignFontPx);
}

QRect Scaled(const QRect &rect, double factor) {
    const auto scaled = [factor](const QPoint &point) {
        return (QPointF(point) * factor).toPoint();
    };
    return {scaled(rect.topLeft()), scaled(rect.bottomRight() + QPoint(1, 1)) - QPoint(1, 1)};
}

int Scaled(int points, double factor) {
    return qRound(points * factor);
}
