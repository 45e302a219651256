#pragma once

class QColor;
class QPainter;
class QRect;

/// Fills a frame of this width along the inner edges of the rectangle. A drawn line of one point
/// could lose an edge on a screen scaled to 125 %.
void FillFrame(QPainter &painter, const QRect &outer, int width, const QColor &colour);
