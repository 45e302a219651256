#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// The palette with the background of a window. The given colours are light, so what is written
/// over them is dark under any desktop theme.
QPalette GivenColours(QPalette palette, QRgb background);

/// Gives one label a text colour of its own.
void SetTextColour(QWidget &label, QRgb colour);
