#pragma once

class QRect;
class QWidget;

/// The design of the windows is made for fonts of up to 11 points. With a larger font all positions
/// and sizes are multiplied by a factor.

/// Returns the size of the widget's font in pixels.
double FontSizePx(const QWidget &widget);

/// Returns the factor for the widget: its font size divided by 11 points at 96 dpi, at least 1.
double ScaleFactor(const QWidget &widget);

/// Returns a rectangle of the design, scaled. Rectangles that touch still touch afterwards.
QRect Scaled(const QRect &rect, double factor);
int Scaled(int points, double factor);
