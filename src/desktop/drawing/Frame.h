#pragma once

class QColor;
class QPainter;
class QRect;

/// Draws a frame of this width along the inner edges of the rectangle. It is filled: a drawn line
/// of one point may fall between the pixels of a screen at 125 % and lose an edge.
void FillFrame(QPainter &painter, const QRect &outer, int width, const QColor &colour);
