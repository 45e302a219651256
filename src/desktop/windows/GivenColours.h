#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// All colours of the program, over the background of a window. The given ones are light, so they
/// all are, under any theme of the desktop, and each text stands out from what lies behind it.
QPalette GivenColours(QRgb background);

/// Gives the window the given colours, and also the application, from which menus, pop-up lists and
/// messages take theirs.
void UseGivenColours(QWidget &window, QRgb background);

/// Lets the frames of what stands on the pages stand out from what lies behind them. The pages
/// paint no background of their own.
void DarkenFrames(QWidget &pages);

/// Gives one label a text colour of its own.
void SetTextColour(QWidget &label, QRgb colour);
