#pragma once

#include "platform/drawing/Graphics.h"

#include <QString>

/// Paper, page by page: what every surface can, and text. Coordinates are points from the top left
/// corner of the paper, whatever the resolution of the printer. Letting go of it ends the print
/// job.
class PrinterGraphics : public Graphics {
public:
    /// The font of the text that follows, by its family and its size in points.
    virtual void SetTextFont(const QString &family) = 0;
    virtual void SetTextSize(double size) = 0;
    virtual void SetBold(bool bold) = 0;
    virtual void SetUnderline(bool underline) = 0;
    /// The height of a line in the current font and size, in points.
    virtual double TextHeight() const = 0;
    /// One line that is never wrapped, with its baseline at y.
    virtual void DrawString(const QString &text, double x, double y) = 0;
    /// Ends the page; what follows is drawn on the next.
    virtual void NextPage() = 0;
};
