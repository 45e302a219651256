#pragma once

#include <QSize>

class QWidget;

/// Returns the largest size of a window on its screen, without its frame.
QSize AvailableSize(const QWidget &window);

/// Sets the desktop's font on the pages of a window, in a smaller size if they would not fit the
/// screen otherwise: `minimum` is the smallest size of the pages in points of the design, `bars`
/// the size of what the window shows besides them.
void UseDesktopFont(QWidget &pages, QSize minimum, QSize bars = {0, 0});

/// Moves a window of this size, with its frame, to the centre of its screen.
void CenterOnScreen(QWidget &window, QSize size);
