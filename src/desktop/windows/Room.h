#pragma once

#include <QSize>

class QWidget;

/// The room for a window on its screen, without the frame that the desktop puts around it.
QSize Room(const QWidget &window);

/// Gives the pages of a window the desktop's font, but no larger one than lets them grow on the
/// screen: `least` is the size in points of the design that they can't do without, `beside` what
/// the window needs besides them.
void UseDesktopFont(QWidget &pages, QSize least, QSize beside = {0, 0});

/// Moves a window of this size, with its frame, to the middle of its screen.
void PutInTheMiddle(QWidget &window, QSize size);
