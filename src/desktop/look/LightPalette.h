#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// Returns the colours of the program for a window with this background. They are light under any
/// theme of the desktop, because the colours of the design are.
QPalette LightPalette(QRgb background);

/// Sets these colours for the window, and for the application: menus, pop-up lists and message
/// boxes use the application's palette.
void UseLightPalette(QWidget &window, QRgb background);

/// Makes the style draw darker frames around the widgets on the pages, which paint no background.
void DarkenFrames(QWidget &pages);

void SetTextColour(QWidget &label, QRgb colour);
