#pragma once

#include "platform/drawing/Graphics.h"

/// Fills the background of a cell: white in even rows, light blue in odd rows.
inline void PaintRowStripe(Graphics &graphics, int row) {
    graphics.SetForeColor(row % 2 == 0 ? Color{0xffffff} : Color{0xd2edf5});
    graphics.FillRect(0, 0, graphics.Width(), graphics.Height());
}
